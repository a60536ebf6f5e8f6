// The reaction texts shown beside the supports after a run, one per active support feature.
#include "analysis/reaction_text.h"

#include <utility>

#include "model/display.h"

namespace flexley {

namespace {

std::string force_text(const BeamModel& model, double force) {
    return display_number(force, model.sig_figs) + (model.metric_units ? " N" : " lb.");
}

std::string fixed_text(const BeamModel& model, double force, double moment) {
    return force_text(model, force) + ", " + display_number(moment, model.sig_figs) +
           (model.metric_units ? " N-m" : " lb.-in.");
}

ReactionText for_support(const BeamModel& model, int support, std::string text) {
    return ReactionText{model.reaction_feature[support], std::move(text)};
}

}  // namespace

std::vector<ReactionText> show_reactions_simple(const BeamModel& model) {
    std::vector<ReactionText> texts;
    for (int i = 1; i <= model.reaction_count; ++i) {
        texts.push_back(for_support(model, i, force_text(model, model.reaction[i])));
    }
    return texts;
}

std::vector<ReactionText> show_reactions_one_cantilever(const BeamModel& model) {
    std::vector<ReactionText> texts;
    texts.push_back(for_support(model, 1, fixed_text(model, model.reaction[2], model.reaction[1])));
    for (int i = 2; i <= model.reaction_count; ++i) {
        texts.push_back(for_support(model, i, force_text(model, model.reaction[i + 1])));
    }
    return texts;
}

std::vector<ReactionText> show_reactions_two_cantilevers(const BeamModel& model) {
    const int n = model.reaction_count;
    std::vector<ReactionText> texts;
    texts.push_back(for_support(model, 1, fixed_text(model, model.reaction[3], model.reaction[1])));
    for (int i = 2; i <= n; ++i) {
        // The second fixed support stands at the right end; it is recognised by its position.
        if (model.reaction_pos[i] == model.beam_length) {
            texts.push_back(
                for_support(model, i, fixed_text(model, model.reaction[n + 2], model.reaction[2])));
        } else {
            texts.push_back(for_support(model, i, force_text(model, model.reaction[i + 2])));
        }
    }
    return texts;
}

std::vector<ReactionText> show_reactions(const BeamModel& model) {
    switch (model.cantilever_count) {
        case 0:
            return show_reactions_simple(model);
        case 1:
            return show_reactions_one_cantilever(model);
        default:
            return show_reactions_two_cantilevers(model);
    }
}

}  // namespace flexley
