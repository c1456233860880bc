#include "kvopt/text/exceptions.h"

namespace kvopt {

Exception::Exception(std::string_view text) : std::runtime_error(std::string(text)) {}
Exception::~Exception() = default;

InvalidArgument::InvalidArgument(std::string_view text) : Exception(text) {}
InvalidArgument::~InvalidArgument() = default;

CancelException::CancelException() : Exception("The plot was abandoned.") {}
CancelException::~CancelException() = default;

FileError::FileError(std::string_view file, std::string_view reason)
    : Exception(std::string(file) + ": " + std::string(reason)), file_(file), reason_(reason) {}
FileError::~FileError() = default;

FileFormatError::FileFormatError(std::string_view file, std::string_view place,
                                 std::string_view expected, std::string_view found)
    : FileError(file, std::string(place) + ": expected " + std::string(expected) + ", found " +
                          std::string(found)),
      place_(place),
      expected_(expected),
      found_(found) {}
FileFormatError::~FileFormatError() = default;

}  // namespace kvopt
