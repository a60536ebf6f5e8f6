// Beams and file texts shared by the load file tests, and the checks a read model must pass.
#pragma once

#include <memory>
#include <string>

#include "model/beam_model.h"

namespace flexley {

// The beam of the format's worked example: metric, 5 m, 2000 N at 2 m, simple supports at 0 and 5.
std::unique_ptr<BeamModel> worked_example_beam();
extern const char* const kWorkedExampleText;

// Beams holding every feature kind, with removed entries of each kind, in either unit system.
std::unique_ptr<BeamModel> english_beam();
std::unique_ptr<BeamModel> metric_beam();

// A version 1 file: English, one uniform distributed load, a removed point load.
extern const char* const kVersion1Text;

// Empty when the model is usable after a successful read: counts within their tables, every
// feature-list entry naming an entry of its table, every stored number finite and in range.
std::string validity_problem(const BeamModel& model);

// Empty when the model is as clear_beam leaves it.
std::string cleared_problem(const BeamModel& model);

}  // namespace flexley
