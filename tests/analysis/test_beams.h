// Beams for the analysis tests, described in one line and built through the model's operations.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <ranges>
#include <sstream>
#include <string>
#include <vector>

#include "model/beam_model.h"
#include "model/beam_settings.h"
#include "model/features.h"

namespace flexley::testing_beams {

inline constexpr double kLength = 240.0;
inline constexpr float kModulus = 29.0e6f;
inline constexpr float kInertia = 100.0f;
inline constexpr float kFibre = 5.0f;
inline constexpr double kRigidity = static_cast<double>(kModulus) * kInertia;  // E x I

// One word of a beam description, its ':' and '@' read as separators.
inline Status apply_word(BeamModel& model, std::string word) {
    std::replace_if(
        word.begin(), word.end(), [](char c) { return c == ':' || c == '@'; }, ' ');
    std::istringstream in(word);
    const std::vector<std::string> t{std::istream_iterator<std::string>(in), {}};
    // "#K" is grid point K of the resolution set so far, computed exactly as the engine does.
    const auto num = [&](std::size_t i) {
        if (t.at(i).front() != '#') return std::stod(t[i]);
        return std::stoi(t[i].substr(1)) * (model.beam_length / model.resolution);
    };
    if (t[0] == "simp" || t[0] == "cant") return add_support(model, num(1), t[0], "in", "lb");
    if (t[0] == "pt") return add_point_load(model, num(1), num(2), "in", "lb");
    if (t[0] == "mo") return add_moment(model, num(1), num(2), "in", "pi");
    if (t[0] == "di")
        return add_distributed_load(model, num(3), num(4), num(1), num(2), "in", "pi");
    if (t[0] == "rm") return remove_feature(model, std::stoi(t.at(1)));
    if (t[0] != "N") return Status::failure("unknown word " + t[0]);
    model.resolution = std::stof(t.at(1));
    return Status::success();
}

// An English beam of kLength with E, I and c entered, built from words applied in order:
// simp@X, cant@X (supports), pt:P@X, mo:C@X, di:W1:W2@A:B (loads), rm:F (remove feature F)
// and N:R (resolution R).
inline BeamModel beam(const std::string& description) {
    BeamModel model;
    model.beam_length = kLength;
    EXPECT_TRUE(set_section_properties(model, kInertia, kModulus, kFibre).ok());
    std::istringstream words(description);
    for (std::string word; words >> word;)
        EXPECT_EQ(apply_word(model, word).message(), "") << word;
    return model;
}

// The largest magnitude of values[0..last].
inline double largest_magnitude(const auto& values, int last) {
    return std::ranges::max(values | std::views::take(last + 1) |
                            std::views::transform([](double v) { return std::abs(v); }));
}

}  // namespace flexley::testing_beams
