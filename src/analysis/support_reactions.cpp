// The reactions of the last run, one entry per active support feature, decoded in one place.
#include "analysis/support_reactions.h"

#include "analysis/results_state.h"
#include "analysis/table_bounds.h"
#include "model/features.h"

namespace flexley {

std::vector<SupportReaction> support_reactions(const BeamModel& model) {
    std::vector<SupportReaction> reactions;
    if (!results_available(model)) return reactions;
    const int n = used_entries(model.reaction_count, kMaxSupports);
    const int m = model.cantilever_count;
    for (int j = 1; j <= n; ++j) {
        const int feature = model.reaction_feature[j];
        const auto support = lookup_feature(model, feature);
        const bool fixed = support && model.su_type[support->index] == "cant";
        SupportReaction reaction{feature, model.reaction_pos[j], fixed, model.reaction[m + j], {}};
        // The moment unknowns come first: the fixed support placed first by the system order,
        // then the one placed last.
        if (fixed && j == 1) reaction.moment = model.reaction[1];
        if (fixed && m == 2 && j == n) reaction.moment = model.reaction[2];
        reactions.push_back(reaction);
    }
    return reactions;
}

}  // namespace flexley
