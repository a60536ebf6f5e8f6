// How numbers become text: the standard number-to-text conversion and display rounding.
#pragma once

#include <string>

namespace flexley {

// The standard text of a number: at most `max_digits` significant digits (1..17), no trailing
// zeros, "." as decimal point, plain form ("0.00123", "12.5", "12345") for magnitudes from 1E-05
// up to below 1E+15 (after rounding), exponent form ("1.5E+20", "2.5E-07") outside that range.
// Files write doubles with 15 digits and single-precision values with 7.
std::string number_text(double value, int max_digits = 15);

// Rounds to `sig_figs` significant figures (at least 1) of the value's 15-digit text, ties to the
// even digit: with 1 figure 25 gives 20, 35 gives 40; with 4 figures 99999 gives 100000.
double sig_round(double value, int sig_figs);

// The one way a number is shown to the user: sig_round, then number_text.
std::string display_number(double value, int sig_figs);

}  // namespace flexley
