// Numbers as text: the forms users see, display rounding with its tie rule, typed numbers.
#include <gtest/gtest.h>

#include "model/display.h"
#include "model/typed_number.h"

namespace flexley {
namespace {

// A value, the digits (significant figures for display_number) and the text expected.
struct TextCase {
    double value;
    int digits;
    const char* text;
};

TEST(NumberText, GivesPlainOrExponentForm) {
    for (const TextCase& c :
         {TextCase{-0.0, 15, "0"}, TextCase{0.1 + 0.2, 15, "0.3"}, TextCase{2.5e-7, 15, "2.5E-07"},
          TextCase{1e-5, 15, "0.00001"}, TextCase{9.9e-6, 15, "9.9E-06"},
          TextCase{999999999999999.0, 15, "999999999999999"}, TextCase{1e15, 15, "1E+15"},
          TextCase{-1e100, 15, "-1E+100"}, TextCase{0.9999999999999999, 15, "1"},
          TextCase{1.0 / 3.0, 7, "0.3333333"}, TextCase{29000000.0f, 7, "29000000"},
          TextCase{123456789.0, 7, "123456800"}})
        EXPECT_EQ(number_text(c.value, c.digits), c.text) << c.value << ", " << c.digits;
}

TEST(DisplayNumber, KeepsSignificantFiguresWithTiesToEven) {
    for (const TextCase& c :
         {TextCase{-0.000123456, 4, "-0.0001235"}, TextCase{1.23456789e20, 4, "1.235E+20"},
          TextCase{99999, 4, "100000"}, TextCase{25, 1, "20"}, TextCase{35, 1, "40"},
          TextCase{0.125, 2, "0.12"}, TextCase{-25, 1, "-20"},
          // 0.15 is just below 0.15 in binary, but its text is an exact decimal tie.
          TextCase{0.15, 1, "0.2"}, TextCase{2.5e-7, 1, "2E-07"}, TextCase{9.96e20, 2, "1E+21"},
          TextCase{1250.0001, 2, "1300"}, TextCase{123.456, 20, "123.456"}})
        EXPECT_EQ(display_number(c.value, c.digits), c.text) << c.value << ", " << c.digits;
}

TEST(TypedNumber, ReadsOnlyWholeFiniteNumbers) {
    EXPECT_EQ(typed_number("\t+2.5\t"), 2.5);
    for (const char* text : {"", "12abc", "+-3", "inf", "1,5"})
        EXPECT_EQ(typed_number(text), std::nullopt) << '"' << text << '"';
}

}  // namespace
}  // namespace flexley
