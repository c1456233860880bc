#include "monkey/last_words.h"

#include <iostream>
#include <utility>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace kvopt::monkey {

namespace {

const LastWords* present = nullptr;

}  // namespace

LastWords::LastWords(std::string episode, const std::vector<UserStep>& played)
    : episode_(std::move(episode)), played_(played) {
    present = this;
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(Speak);
#endif
}

LastWords::~LastWords() {
    present = nullptr;
}

void LastWords::Speak() {
    if (present == nullptr) {
        return;
    }
    std::cout << "# BROKEN: a sanitizer ended the run\n" << present->episode_;
    for (const UserStep& step : present->played_) {
        std::cout << step.Text() << '\n';
    }
    std::cout.flush();
}

}  // namespace kvopt::monkey
