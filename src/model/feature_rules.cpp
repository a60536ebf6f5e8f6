// The geometry rules of features, each refusal with its message and its reason.
#include "model/feature_rules.h"

#include <cmath>
#include <string>

#include "model/display.h"

namespace flexley {
namespace {

std::string text(double value) {
    return number_text(value);
}

Status refused(const char* message, std::string reason) {
    return Status::failure(message).with_detail(std::move(reason));
}

// NaN fails both comparisons, so a position that is not a number is off the beam too.
bool on_beam(const BeamModel& model, double position) {
    return position >= 0.0 && position <= model.beam_length;
}

std::string off_beam(std::string_view what, const BeamModel& model, double position) {
    return std::string(what) + " position " + text(position) + " lies outside the beam (0 to " +
           text(model.beam_length) + ").";
}

std::string not_finite(std::string_view what, double value) {
    return std::string(what) + " " + text(value) + " is not a finite number.";
}

// Shared by point loads and moments: a position on the beam, then a finite non-zero magnitude.
Status check_concentrated(const BeamModel& model, double magnitude, double location,
                          std::string_view what, const char* bad_location,
                          const char* bad_magnitude, const char* zero_magnitude) {
    if (!on_beam(model, location)) return refused(bad_location, off_beam(what, model, location));
    if (!std::isfinite(magnitude)) {
        return refused(bad_magnitude, not_finite(std::string(what) + " magnitude", magnitude));
    }
    if (magnitude == 0.0) {
        return refused(zero_magnitude, std::string(what) + " magnitude is 0.");
    }
    return Status::success();
}

bool stands_elsewhere_at(const BeamModel& model, double location, int own_index) {
    for (int j = 1; j <= model.su_count; ++j) {
        if (j != own_index && model.su_loc[j] >= 0.0 && model.su_loc[j] == location) return true;
    }
    return false;
}

}  // namespace

Status check_point_load(const BeamModel& model, double magnitude, double location) {
    return check_concentrated(model, magnitude, location, "point load", kInvalidLoadLocation,
                              kInvalidLoadMagnitude, kNonZeroLoad);
}

Status check_moment(const BeamModel& model, double magnitude, double location) {
    return check_concentrated(model, magnitude, location, "moment", kInvalidMomentLocation,
                              kInvalidMomentMagnitude, kNonZeroMoment);
}

Status check_distributed_load(const BeamModel& model, double start, double end, double mag_start,
                              double mag_end) {
    const std::string length = text(model.beam_length);
    if (!(start >= 0.0 && start < model.beam_length)) {
        return refused(kInvalidStartingLocation, "distributed load start " + text(start) +
                                                     " does not lie from 0 to before the beam's "
                                                     "end (" +
                                                     length + ").");
    }
    if (!(end > start && end <= model.beam_length)) {
        return refused(kInvalidEndingLocation, "distributed load end " + text(end) +
                                                   " does not lie beyond its start (" +
                                                   text(start) +
                                                   ") and at most at the beam's "
                                                   "end (" +
                                                   length + ").");
    }
    for (double intensity : {mag_start, mag_end}) {
        if (!std::isfinite(intensity)) {
            return refused(kInvalidLoadMagnitude,
                           not_finite("distributed load intensity", intensity));
        }
    }
    if (mag_start == 0.0 && mag_end == 0.0) {
        return refused(kNonZeroLoad, "distributed load intensities are both 0.");
    }
    return Status::success();
}

Status check_support(const BeamModel& model, double location, std::string_view type,
                     int own_index) {
    if (type != "simp" && type != "cant") {
        return refused(kUnknownSupportKind, "support kind \"" + std::string(type) +
                                                "\" is neither \"simp\" nor \"cant\".");
    }
    if (!on_beam(model, location)) {
        return refused(kInvalidSupportLocation, off_beam("support", model, location));
    }
    // The engine gives a fixed support a moment unknown and integrates from a fixed end.
    if (type == "cant" && location != 0.0 && location != model.beam_length) {
        return refused(kCantileverAtEndsOnly, "cantilever support at " + text(location) +
                                                  " is not at an end of the beam (0 or " +
                                                  text(model.beam_length) + ").");
    }
    // Two supports at one point make the reaction system singular.
    if (stands_elsewhere_at(model, location, own_index)) {
        return refused(kSupportExists, "another support already stands at " + text(location) + ".");
    }
    return Status::success();
}

}  // namespace flexley
