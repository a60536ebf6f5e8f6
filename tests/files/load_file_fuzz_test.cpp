// The load file reader against truncated and corrupted files: every outcome is either a usable
// beam or "File access error" with an empty beam, never a crash or an index out of range.
#include <gtest/gtest.h>

#include <algorithm>
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

std::vector<std::string> split_lines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = text.find('\n', start);
        if (end == std::string::npos) {
            lines.push_back(text.substr(start));
            break;
        }
        lines.push_back(text.substr(start, end - start + 1));
        start = end + 1;
    }
    return lines;
}

std::string join(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line;
    return text;
}

// Replaces one comma-separated field of a random line with a hostile text.
std::string replace_field(const std::string& text, std::mt19937& random) {
    static const std::vector<std::string> hostile{
        "1E+308", "1E+309", "-1E+400", "1E-400", "nan", "NaN",        "inf",     "-Infinity",
        "-5",     "-1",     "32768",   "65537",  "171", "9999999999", "\"nan\"", "\"1E+999\"",
        "",       "\"\"",   "0",       "200001", "9.5", "\"pt999\"",  "\"su0\"", "#TRUE#"};
    std::vector<std::string> lines = split_lines(text);
    std::string& line = lines[random() % lines.size()];
    std::vector<std::size_t> commas{0};
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == ',') commas.push_back(i + 1);
    }
    const std::size_t start = commas[random() % commas.size()];
    const std::size_t end = std::min(line.find_first_of(",\r\n", start), line.size());
    line.replace(start, end - start, hostile[random() % hostile.size()]);
    return join(lines);
}

std::string mutate(std::string text, std::mt19937& random) {
    std::vector<std::string> lines = split_lines(text);
    switch (random() % 5) {
        case 0:
            text[random() % text.size()] = static_cast<char>(random() % 256);
            return text;
        case 1:
            lines.erase(lines.begin() + random() % lines.size());
            return join(lines);
        case 2: {
            const std::size_t line = random() % lines.size();
            lines.insert(lines.begin() + line, lines[line]);
            return join(lines);
        }
        case 3:
            std::swap(lines[random() % lines.size()], lines[random() % lines.size()]);
            return join(lines);
        default:
            return replace_field(text, random);
    }
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
