#pragma once

#include <clocale>
#include <iostream>
#include <locale>
#include <string>

namespace varno::testing {

/// For as long as it lives, everything of the standard library that looks at a locale sees a decimal comma
/// and grouped thousands: the C++ library in any case, the C library when the system has a language with a
/// decimal comma installed (`cLocale` names it, empty when there is none).
class CommaLocale {
  public:
    CommaLocale() {
        std::locale::global(std::locale(std::locale::classic(), new Comma));
        for (const char* name : {"sv_SE.UTF-8", "sv_SE.utf8", "de_DE.UTF-8", "de_DE.utf8", "sv_SE", "de_DE",
                                 "Swedish_Sweden.1252", "German_Germany.1252"}) {
            if (std::setlocale(LC_ALL, name) == nullptr) continue;
            if (std::localeconv()->decimal_point != std::string(",")) continue;
            cLocale = name;
            return;
        }
        std::cout << "No language with a decimal comma is installed: the C library keeps its point here.\n";
    }
    ~CommaLocale() {
        std::locale::global(before_);
        std::setlocale(LC_ALL, cBefore_.c_str());
    }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

    std::string cLocale;

  private:
    struct Comma : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };

    std::string cBefore_ = std::setlocale(LC_ALL, nullptr);
    std::locale before_;
};

} // namespace varno::testing
