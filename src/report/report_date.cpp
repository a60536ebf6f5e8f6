// Formats the current date with the user's locale, so the report reads like their other dates.
#include "report/report_date.h"

#include <ctime>
#include <iomanip>
#include <locale>
#include <sstream>
#include <stdexcept>

namespace flexley {

namespace {

std::locale user_locale() {
    try {
        return std::locale("");
    } catch (const std::runtime_error&) {
        return std::locale::classic();
    }
}

}  // namespace

std::string today_short_date() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    if (const std::tm* converted = std::localtime(&now)) local = *converted;
    std::ostringstream text;
    text.imbue(user_locale());
    text << std::put_time(&local, "%x");
    return text.str();
}

}  // namespace flexley
