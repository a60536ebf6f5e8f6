// The beam properties dialog's units and its reading of typed values.
#include <gtest/gtest.h>

#include "sections/property_entry.h"

namespace flexley {
namespace {

constexpr auto kI = SectionProperty::moment_of_inertia;
constexpr auto kE = SectionProperty::elastic_modulus;
constexpr auto kC = SectionProperty::fibre_distance;

struct EntryCase {
    SectionProperty property;
    bool metric;
    const char* typed;
    double model_value;
    const char* refusal;  // nullptr when accepted
};

// A factor applied the wrong way, or to the wrong property, is off by a factor of 10^6 or more.
TEST(PropertyEntry, ConvertsShownUnitsToTheModelAndRefusesWhatCannotBeAProperty) {
    const EntryCase cases[] = {
        {kI, true, "8000000", 8e-06, nullptr},
        {kE, true, "210", 2.1e11, nullptr},
        {kC, true, "150", 0.15, nullptr},
        {kI, false, " 204 ", 204.0, nullptr},
        {kI, false, "", 0, "Enter a number of zero or more for the moment of inertia (I)."},
        {kE, true, "steel", 0, "Enter a number of zero or more for the modulus of elasticity (E)."},
        {kC, false, "-2", 0,
         "Enter a number of zero or more for the distance to the farthest fiber (c)."},
        {kI, false, "1e39", 0, "The value of the moment of inertia (I) is too large."},
    };
    for (const EntryCase& row : cases) {
        const SectionEntry entry = section_entry(row.property, row.typed, row.metric);
        EXPECT_EQ(entry.status.message(), row.refusal ? row.refusal : "") << row.typed;
        if (!row.refusal) {
            EXPECT_DOUBLE_EQ(entry.model_value, row.model_value) << row.typed;
        }
    }
    EXPECT_DOUBLE_EQ(shown_section_value(kI, 8e-06, true), 8000000.0);
    EXPECT_DOUBLE_EQ(shown_section_value(kE, 2.1e11, true), 210.0);
    EXPECT_DOUBLE_EQ(shown_section_value(kC, 0.15, true), 150.0);
    EXPECT_EQ(shown_section_value(kE, 3e7, false), 3e7);
}

}  // namespace
}  // namespace flexley
