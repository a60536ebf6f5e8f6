// Beams for the analysis tests, described in one line and built through the model's operations.
#include "test_beams.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>

#include "model/features.h"

namespace flexley::testing_beams {

namespace {

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);) {
        parts.push_back(part);
    }
    return parts;
}

double position(const BeamModel& model, const std::string& text) {
    if (text.front() != '#') return std::stod(text);
    return std::stoi(text.substr(1)) * (model.beam_length / static_cast<double>(model.resolution));
}

Status apply_word(BeamModel& model, const std::string& word) {
    const auto at = word.find('@');
    const auto head = split(word.substr(0, at), ':');
    const auto where =
        at == std::string::npos ? std::vector<std::string>{} : split(word.substr(at + 1), ':');
    const std::string& kind = head.at(0);
    if (kind == "simp" || kind == "cant") {
        return add_support(model, position(model, where.at(0)), kind, "in", "lb");
    }
    if (kind == "pt") {
        return add_point_load(model, std::stod(head.at(1)), position(model, where.at(0)), "in",
                              "lb");
    }
    if (kind == "mo") {
        return add_moment(model, std::stod(head.at(1)), position(model, where.at(0)), "in", "pi");
    }
    if (kind == "di") {
        return add_distributed_load(model, position(model, where.at(0)),
                                    position(model, where.at(1)), std::stod(head.at(1)),
                                    std::stod(head.at(2)), "in", "pi");
    }
    if (kind == "rm") return remove_feature(model, std::stoi(head.at(1)));
    if (kind == "N") {
        model.resolution = std::stof(head.at(1));
        return Status::success();
    }
    return Status::failure("unknown word");
}

}  // namespace

BeamModel beam(std::string_view description, double length) {
    BeamModel model;
    model.beam_length = length;
    model.elastic_modulus = kModulus;
    model.moment_of_inertia = kInertia;
    model.fibre_distance = kFibre;
    std::istringstream words{std::string(description)};
    for (std::string word; words >> word;) {
        const Status status = apply_word(model, word);
        EXPECT_TRUE(status.ok()) << word << ": " << status.message();
    }
    return model;
}

double largest_magnitude(const std::vector<double>& values, int last) {
    double largest = 0.0;
    for (int i = 0; i <= last; ++i) {
        largest = std::max(largest, std::abs(values[i]));
    }
    return largest;
}

}  // namespace flexley::testing_beams
