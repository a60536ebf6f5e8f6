// Beams for the analysis tests, described in one line and built through the model's operations.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "model/beam_model.h"
#include "model/features.h"

namespace flexley::testing_beams {

inline constexpr double kLength = 240.0;
inline constexpr float kModulus = 29.0e6f;
inline constexpr float kInertia = 100.0f;
inline constexpr float kFibre = 5.0f;
inline constexpr double kRigidity = static_cast<double>(kModulus) * kInertia;  // E x I

// One word of a beam description, its ':' and '@' read as separators.
inline Status apply_word(BeamModel& model, std::string word) {
    std::replace(word.begin(), word.end(), ':', ' ');
    std::replace(word.begin(), word.end(), '@', ' ');
    std::istringstream in(word);
    std::vector<std::string> t;
    for (std::string token; in >> token;) {
        t.push_back(token);
    }
    const auto num = [&](std::size_t i) { return std::stod(t.at(i)); };
    // "#K" is grid point K of the resolution set so far, computed exactly as the engine does.
    const auto at = [&](std::size_t i) {
        if (t.at(i).front() != '#') return num(i);
        return std::stoi(t[i].substr(1)) * (model.beam_length / model.resolution);
    };
    if (t[0] == "simp" || t[0] == "cant") return add_support(model, at(1), t[0], "in", "lb");
    if (t[0] == "pt") return add_point_load(model, num(1), at(2), "in", "lb");
    if (t[0] == "mo") return add_moment(model, num(1), at(2), "in", "pi");
    if (t[0] == "di") return add_distributed_load(model, at(3), at(4), num(1), num(2), "in", "pi");
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
    model.elastic_modulus = kModulus;
    model.moment_of_inertia = kInertia;
    model.fibre_distance = kFibre;
    std::istringstream words(description);
    for (std::string word; words >> word;) {
        const Status status = apply_word(model, word);
        EXPECT_TRUE(status.ok()) << word << ": " << status.message();
    }
    return model;
}

// The largest magnitude of values(0..last).
inline double largest_magnitude(const std::vector<double>& values, int last) {
    double largest = 0.0;
    for (int i = 0; i <= last; ++i) {
        largest = std::max(largest, std::abs(values[i]));
    }
    return largest;
}

}  // namespace flexley::testing_beams
