// Where a new cantilever support goes: the first at the left end, the second at the right end.
#include "ui/dialogs/cantilever_placement.h"

#include <string>

#include "model/feature_rules.h"
#include "model/limits.h"

namespace flexley {

CantileverPlacement place_cantilever(const BeamModel& model) {
    int cantilevers = 0;
    std::string left_type;
    std::string right_type;
    for (int j = 1; j <= model.su_count; ++j) {
        if (model.su_loc[j] < 0.0) continue;
        if (model.su_type[j] == "cant") ++cantilevers;
        if (model.su_loc[j] == 0.0) left_type = model.su_type[j];
        if (model.su_loc[j] == model.beam_length) right_type = model.su_type[j];
    }
    if (cantilevers >= kMaxCantilevers) return {0.0, kCantileverAtEndsOnly};
    if (left_type == "simp") return {0.0, kFirstCantileverAtLeft};
    if (left_type == "cant") {
        if (!right_type.empty()) return {0.0, kCantileverAtEndsOnly};
        return {model.beam_length, nullptr};
    }
    return {0.0, nullptr};
}

}  // namespace flexley
