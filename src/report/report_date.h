// Today's date as the report's closing line shows it.
#pragma once

#include <string>

namespace flexley {

// The current local date in the short date form of the user's locale, or of the C locale when
// the environment names no usable locale.
std::string today_short_date();

}  // namespace flexley
