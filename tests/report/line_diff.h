// Compares whole lists of report lines and describes every difference, line by line.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace flexley::testing {

// Lines are shown between bars so that leading and trailing blanks can be counted.
inline ::testing::AssertionResult same_lines(const std::vector<std::string>& expected,
                                             const std::vector<std::string>& actual) {
    std::ostringstream diff;
    const std::size_t count = std::max(expected.size(), actual.size());
    for (std::size_t i = 0; i < count; ++i) {
        const bool has_expected = i < expected.size();
        const bool has_actual = i < actual.size();
        if (has_expected && has_actual && expected[i] == actual[i]) continue;
        diff << "line " << i + 1 << ":\n";
        diff << "  expected " << (has_expected ? "|" + expected[i] + "|" : "(none)") << "\n";
        diff << "  actual   " << (has_actual ? "|" + actual[i] + "|" : "(none)") << "\n";
    }
    if (diff.str().empty()) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << expected.size() << " lines expected, " << actual.size() << " produced\n"
           << diff.str();
}

}  // namespace flexley::testing
