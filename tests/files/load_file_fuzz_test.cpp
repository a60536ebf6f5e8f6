// The load file reader against truncated and corrupted files: every outcome is either a usable
// beam or "File access error" with an empty beam, never a crash or an index out of range.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "files/load_file.h"
#include "sample_beams.h"

namespace flexley {
namespace {

struct Sample {
    std::string text;
    LoadFormat format;
};

std::vector<Sample> valid_samples() {
    return {{kWorkedExampleText, LoadFormat::current},
            {load_configuration_text(*english_beam()), LoadFormat::current},
            {load_configuration_text(*metric_beam()), LoadFormat::current},
            {kVersion1Text, LoadFormat::version1}};
}

// Empty when the outcome is acceptable, else what is wrong with it.
std::string outcome_problem(const LoadResult& result, const BeamModel& model) {
    if (!result.status.ok()) {
        if (result.status.message() != kFileAccessError) return "unexpected message";
        return cleared_problem(model);
    }
    if (static_cast<int>(result.label_groups.size()) != model.feature_count) {
        return "one label group kind per feature expected";
    }
    return validity_problem(model);
}

// The text's lines with their line ends; the last entry holds what follows the last line end.
std::vector<std::string> split_lines(const std::string& text) {
    std::vector<std::string> lines{""};
    for (char c : text) {
        lines.back() += c;
        if (c == '\n') lines.emplace_back();
    }
    return lines;
}

// Replaces one comma-separated field of the line with a hostile text.
void replace_field(std::string& line, std::mt19937& random) {
    static const char* const hostile[] = {
        "1E+308", "1E+309", "-1E+400", "1E-400", "nan", "NaN",        "inf",     "-Infinity",
        "-5",     "-1",     "32768",   "65537",  "171", "9999999999", "\"nan\"", "\"1E+999\"",
        "",       "\"\"",   "0",       "200001", "9.5", "\"pt999\"",  "\"su0\"", "#TRUE#"};
    std::vector<std::size_t> starts{0};
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == ',') starts.push_back(i + 1);
    }
    const std::size_t start = starts[random() % starts.size()];
    const std::size_t end = std::min(line.find_first_of(",\r\n", start), line.size());
    line.replace(start, end - start, hostile[random() % std::size(hostile)]);
}

std::string mutate(const std::string& text, std::mt19937& random) {
    std::vector<std::string> lines = split_lines(text);
    const std::size_t pick = random() % lines.size();
    switch (random() % 5) {
        case 0: {
            std::string flipped = text;
            flipped[random() % flipped.size()] = static_cast<char>(random() % 256);
            return flipped;
        }
        case 1:
            lines.erase(lines.begin() + pick);
            break;
        case 2:
            lines.insert(lines.begin() + pick, lines[pick]);
            break;
        case 3:
            std::swap(lines[pick], lines[random() % lines.size()]);
            break;
        default:
            replace_field(lines[pick], random);
            break;
    }
    std::string mutated;
    for (const std::string& line : lines)
        mutated += line;
    return mutated;
}

TEST(LoadReaderRobustness, EveryTruncationIsReadOrRefusedCleanly) {
    auto model = std::make_unique<BeamModel>();
    for (const Sample& sample : valid_samples()) {
        for (std::size_t length = 0; length <= sample.text.size(); ++length) {
            const std::string prefix = sample.text.substr(0, length);
            const LoadResult result = read_load_configuration_text(prefix, *model, sample.format);
            ASSERT_EQ(outcome_problem(result, *model), "") << prefix;
        }
    }
}

TEST(LoadReaderRobustness, RandomMutationsAreReadOrRefusedCleanly) {
    auto model = std::make_unique<BeamModel>();
    std::mt19937 random(20240611);
    int refused = 0;
    const int kRuns = 4000;
    const std::vector<Sample> samples = valid_samples();
    for (int run = 0; run < kRuns; ++run) {
        const Sample& sample = samples[run % samples.size()];
        std::string text = mutate(sample.text, random);
        if (random() % 3 == 0) text = mutate(text, random);
        const LoadResult result = read_load_configuration_text(text, *model, sample.format);
        ASSERT_EQ(outcome_problem(result, *model), "") << "run " << run << ":\n" << text;
        if (!result.status.ok()) ++refused;
    }
    // Both outcomes must occur, or the mutations are not reaching the reader's checks.
    EXPECT_GT(refused, kRuns / 4);
    EXPECT_LT(refused, kRuns);
}

}  // namespace
}  // namespace flexley
