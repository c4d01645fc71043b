#include "input/number_box.h"

namespace varno {

double asShown(double value, std::string_view pattern) {
    return VARNO1::parseNumber(formatNumber(value, pattern, {.decimal = ".", .thousands = ""}));
}

double digitsOf(float value) {
    return VARNO1::plainNumber(generalForm(value));
}

} // namespace varno
