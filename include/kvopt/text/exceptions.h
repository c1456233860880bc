#pragma once

/// \file
/// Everything that this library throws.

#include <stdexcept>
#include <string>
#include <string_view>

#include "kvopt/export.h"

namespace kvopt {

/// Base of every exception of the library; what() is UTF-8.
class KVOPT_EXPORT Exception : public std::runtime_error {
public:
    explicit Exception(std::string_view text);
    ~Exception() override;
};

/// A misuse by code: the text names the operation.
class KVOPT_EXPORT InvalidArgument : public Exception {
public:
    explicit InvalidArgument(std::string_view text);
    ~InvalidArgument() override;
};

/// Thrown by a page to abandon a plot altogether; not an error.
class KVOPT_EXPORT CancelException : public Exception {
public:
    CancelException();
    ~CancelException() override;
};

/// A file that the system refused to read or to write.
class KVOPT_EXPORT FileError : public Exception {
public:
    FileError(std::string_view file, std::string_view reason);
    ~FileError() override;

    const std::string& File() const { return file_; }
    const std::string& Reason() const { return reason_; }

private:
    std::string file_;
    std::string reason_;
};

/// A file that was read but is not what it should be: which file, where in it, what was expected
/// there and what was found instead.
class KVOPT_EXPORT FileFormatError : public FileError {
public:
    /// `place` is a line and column or the path of the element, as text.
    FileFormatError(std::string_view file, std::string_view place, std::string_view expected,
                    std::string_view found);
    ~FileFormatError() override;

    const std::string& Place() const { return place_; }
    const std::string& Expected() const { return expected_; }
    const std::string& Found() const { return found_; }

private:
    std::string place_;
    std::string expected_;
    std::string found_;
};

}  // namespace kvopt
