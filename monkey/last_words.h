#pragma once

#include <string>
#include <vector>

#include "kvopt/scripted/user_step.h"

namespace kvopt::monkey {

/// Says, when a sanitizer ends the process, which episode that was and what was played of it.
class LastWords {
public:
    /// `played` outlives this object.
    LastWords(std::string episode, const std::vector<UserStep>& played);
    ~LastWords();
    LastWords(const LastWords&) = delete;
    LastWords& operator=(const LastWords&) = delete;

private:
    static void Speak();

    std::string episode_;
    const std::vector<UserStep>& played_;
};

}  // namespace kvopt::monkey
