#pragma once

#include <clocale>
#include <locale>
#include <string>

namespace kvopt::test {

/// A process that counts in German while this object lives: decimal comma and dots between
/// thousands, for the streams by facets of its own (so no system locale is needed), and for the C
/// library where the system has the locale.
class GermanProcess {
public:
    GermanProcess()
        : former_(std::locale::global(std::locale(
              std::locale(std::locale::classic(), new Numbers<char>), new Numbers<wchar_t>))) {
        for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE"}) {
            if (std::setlocale(LC_ALL, name) != nullptr) {
                break;
            }
        }
    }
    GermanProcess(const GermanProcess&) = delete;
    GermanProcess& operator=(const GermanProcess&) = delete;
    ~GermanProcess() {
        std::locale::global(former_);
        std::setlocale(LC_ALL, "C");
    }

private:
    template <class Char>
    struct Numbers : std::numpunct<Char> {
        Char do_decimal_point() const override { return ','; }
        Char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };

    std::locale former_;
};

}  // namespace kvopt::test
