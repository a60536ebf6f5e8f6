// The reaction texts shown beside the supports after a run, one per active support feature.
#include "analysis/reaction_text.h"

#include "analysis/support_reactions.h"
#include "model/display.h"

namespace flexley {

std::vector<ReactionText> show_reactions(const BeamModel& model) {
    const bool metric = model.metric_units;
    std::vector<ReactionText> texts;
    for (const SupportReaction& reaction : support_reactions(model)) {
        std::string text =
            display_number(reaction.force, model.sig_figs) + (metric ? " N" : " lb.");
        if (reaction.moment) {
            text += ", " + display_number(*reaction.moment, model.sig_figs) +
                    (metric ? " N-m" : " lb.-in.");
        }
        texts.push_back({reaction.feature_number, std::move(text)});
    }
    return texts;
}

}  // namespace flexley
