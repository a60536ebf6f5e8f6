// The load file: its name, its exact text, safe saving, round trips and every refusal.
#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <memory>
#include <random>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#include "files/file_names.h"
#include "files/load_file.h"
#include "model/features.h"
#include "temp_dir.h"

namespace flexley {
namespace {

const std::string kWorkedExample =
    "1,0,0,2,1,0,0,2,3,\r\n5,2000,0,0,0,0,0\r\n0,0,0,10000,#TRUE#,#TRUE#\r\n2000,2\r\n"
    "0,\"simp\"\r\n5,\"simp\"\r\n\"pt1\",\"m\",\"N\"\r\n\"su1\",\"\",\"\"\r\n\"su2\",\"\",\"\"\r\n";

const char* const kVersion1Text =
    "2,1,0,1,2,1,0,1,4,\r\n120,500,0,0,0,12,0\r\n6,100,29000000,10000,#FALSE#\r\n0,30\r\n"
    "500,60\r\n12,0,120\r\n0,\"simp\"\r\n\"pt1\",\"ft\",\"lb\"\r\n\"pt2\",\"ft\",\"lb\"\r\n"
    "\"di1\",\"ft\",\"pf\"\r\n\"su1\",\"ft\",\"lb\"\r\n";

// The worked example with the first `from` replaced by `to`.
std::string edited(const std::string& from, const std::string& to) {
    std::string text = kWorkedExample;
    return text.replace(text.find(from), from.size(), to);
}

// A valid file with these table sizes; every feature-list entry names point load 1.
std::string file_of_counts(int pt, int di, int mo, int su, int features) {
    const auto repeated = [](int count, const char* line) {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += line;
        return text;
    };
    return std::to_string(pt) + "," + std::to_string(di) + "," + std::to_string(mo) + "," +
           std::to_string(su) + ",0,0,0,0," + std::to_string(features) +
           ",\r\n10,0,0,0,0,0,0\r\n0,0,0,10000,#FALSE#,#FALSE#\r\n" + repeated(pt, "1,5\r\n") +
           repeated(di, "1,1,0,10\r\n") + repeated(mo, "1,5\r\n") + repeated(su, "5,\"simp\"\r\n") +
           repeated(features, "\"pt1\",\"\",\"\"\r\n");
}

std::unique_ptr<BeamModel> worked_example_beam() {
    auto m = std::make_unique<BeamModel>();
    m->metric_units = m->positions_in_inches = true;
    m->beam_length = 5;
    add_point_load(*m, 2000, 2, "m", "N");
    add_support(*m, 0, "simp", "", "");
    add_support(*m, 5, "simp", "", "");
    m->pt_drawn = 1;
    m->su_drawn = 2;
    return m;
}

// Every feature kind, a removed point load and a removed support, in either unit system.
std::unique_ptr<BeamModel> sample_beam(bool metric) {
    auto m = std::make_unique<BeamModel>();
    const auto unit = [metric](auto si, auto english) { return metric ? si : english; };
    m->metric_units = m->positions_in_inches = metric;
    const double l = m->beam_length = metric ? 5 : 240;
    m->resolution = 20000;
    add_point_load(*m, 1000, l / 4, unit("m", "ft"), unit("N", "lb"));
    add_point_load(*m, -1.5e-7, l / 3, unit("m", "in"), unit("kg", "lb"));
    add_distributed_load(*m, l / 2, l, 10, -5.5, unit("m", "in"), unit("kg", "pi"));
    add_moment(*m, -1200, l * 0.75, unit("m", "ft"), unit("N", "pf"));
    add_support(*m, 0, "cant", "", "");
    add_support(*m, l / 7, "simp", unit("m", "ft"), unit("N", "lb"));
    for (int number : {1, 6})
        remove_feature(*m, number);
    return m;
}

// "f" for a feature's own label group, "p" for placeholders, one letter per feature number.
std::string groups_of(const LoadResult& result) {
    std::string groups;
    for (LabelGroup group : result.label_groups)
        groups += group == LabelGroup::feature ? 'f' : 'p';
    return groups;
}

// Whether the model is as clear_beam leaves it: no features, no scales, default settings.
bool is_cleared(const BeamModel& model) {
    static const std::regex cleared(
        "0,0,0,0,0,0,0,0,0,\r\n[^,]+,0,0,0,0,0,0\r\n0,0,0,10000,#\\w+#,#\\w+#\r\n");
    return std::regex_match(load_configuration_text(model), cleared);
}

TEST(LoadFileName, LodIsAppendedUnlessAThreeLetterExtensionIsThere) {
    const std::pair<const char*, const char*> rows[] = {
        {"beam", "beam.lod"}, {"beam.txt", "beam.txt"}, {"a.b", "a.b.lod"},
        {"abc", "abc.lod"},   {".lod", ".lod"},         {"beam.lod2", "beam.lod2.lod"}};
    for (const auto& [typed, completed] : rows)
        EXPECT_EQ(complete_file_name(typed), completed);
}

TEST(LoadFileText, DoublesKeepFifteenDigitsAndSinglesSeven) {
    BeamModel model;
    model.beam_length = 1.0 / 3.0;
    model.elastic_modulus = 1.0f / 3.0f;
    add_point_load(model, 2.5e-7, 0.1 + 0.2, "in", "lb");
    EXPECT_EQ(load_configuration_text(model),
              "1,0,0,0,0,0,0,0,1,\r\n0.333333333333333,2.5E-07,0,0,0,0,0\r\n"
              "0,0,0.3333333,10000,#FALSE#,#FALSE#\r\n2.5E-07,0.3\r\n\"pt1\",\"in\",\"lb\"\r\n");
}

TEST(LoadFileSave, ReplacesTheWholeFileKeepingItsPermissionsOrSaysWhyNot) {
    namespace fs = std::filesystem;
    TempDir dir;
    const std::string path = dir.file("beam.lod");
    write_test_file(path, std::string(5000, 'x'));
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
    ASSERT_TRUE(write_load_configuration(*worked_example_beam(), path).ok());
    EXPECT_EQ(read_test_file(path), kWorkedExample);
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_directory(dir.path / "folder.lod");
    const std::pair<std::string, const char*> failures[] = {
        {dir.file("missing/beam.lod"), "The folder does not exist."},
        {dir.file("folder.lod"), "Something other than a file already has that name."}};
    for (const auto& [target, reason] : failures) {
        EXPECT_EQ(write_load_configuration(BeamModel(), target).message(),
                  "Unable to save " + target + ".  " + reason);
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(dir.path), {}), 2) << "a temporary file is left";
}

TEST(LoadFile, WrittenBeamsReadBackWithPlaceholdersForRemovedFeatures) {
    TempDir dir;
    for (bool metric : {false, true}) {
        const std::unique_ptr<BeamModel> written = sample_beam(metric);
        ASSERT_TRUE(write_load_configuration(*written, dir.file("beam.lod")).ok());
        const std::unique_ptr<BeamModel> read = sample_beam(!metric);
        const LoadResult result = read_load_configuration(dir.file("beam.lod"), *read);
        EXPECT_EQ(load_configuration_text(*read), load_configuration_text(*written));
        EXPECT_EQ(groups_of(result), "pffffp");
    }
}

TEST(LoadReader, AcceptsLooserSpellingsAndVersion1Files) {
    const struct {
        std::string text;
        LoadFormat format = LoadFormat::current;
        std::string expected = kWorkedExample;
        const char* groups = "fff";
    } rows[] = {
        {std::regex_replace(kWorkedExample, std::regex("\r\n"), "\n")},
        {kWorkedExample.substr(0, kWorkedExample.size() - 2)},
        {edited("2000,2\r", "  2000,   2\r")},
        {edited("2000,2\r", "\"2000\",\"2\"\r")},
        {edited("2000,2\r", "2E+03,.2e1\r")},
        // Version 1 knew only English units and uniform distributed loads.
        {kVersion1Text, LoadFormat::version1,
         "2,1,0,1,2,1,0,1,4,\r\n120,500,0,0,0,12,0\r\n6,100,29000000,10000,#FALSE#,#FALSE#\r\n"
         "0,30\r\n500,60\r\n12,12,0,120\r\n0,\"simp\"\r\n\"pt1\",\"ft\",\"lb\"\r\n"
         "\"pt2\",\"ft\",\"lb\"\r\n\"di1\",\"ft\",\"pf\"\r\n\"su1\",\"ft\",\"lb\"\r\n",
         "pfff"},
    };
    auto model = std::make_unique<BeamModel>();
    for (const auto& row : rows) {
        model->metric_units = true;
        const LoadResult result = read_load_configuration_text(row.text, *model, row.format);
        ASSERT_TRUE(result.status.ok()) << row.text;
        EXPECT_EQ(load_configuration_text(*model), row.expected) << row.text;
        EXPECT_EQ(groups_of(result), row.groups) << row.text;
    }
    EXPECT_TRUE(
        read_load_configuration_text(file_of_counts(50, 50, 50, 20, 170), *model).status.ok());
}

TEST(LoadReader, RefusesEveryFaultWithFileAccessErrorAndAnEmptyBeam) {
    TempDir dir;
    std::filesystem::create_directory(dir.path / "directory");
    const struct {
        const char* name;
        double length;  // the sample beam's 240 unless the file's length was read before the fault
        std::string text;  // empty: no file is written
        LoadFormat format = LoadFormat::current;
    } rows[] = {{"missing_file", 240, ""},
                {"directory", 240, ""},
                {"premature_end", 5, kWorkedExample.substr(0, kWorkedExample.find("\"su2\""))},
                {"point_loads_beyond_50", 240, file_of_counts(51, 50, 50, 20, 170)},
                {"distributed_beyond_50", 240, file_of_counts(50, 51, 50, 20, 170)},
                {"moments_beyond_50", 240, file_of_counts(50, 50, 51, 20, 170)},
                {"supports_beyond_20", 240, file_of_counts(50, 50, 50, 21, 170)},
                {"features_beyond_170", 240, file_of_counts(50, 50, 50, 20, 171)},
                {"negative_count", 240, file_of_counts(0, 0, 0, 0, -1)},
                {"fractional_count", 240, edited("3,\r", "3.5,\r")},
                {"drawn_beyond_count", 240, edited("1,0,0,2,1", "1,0,0,2,2")},
                {"too_many_fields", 5, edited("2000,2\r", "2000,2,0\r")},
                {"word_for_number", 5, edited("2000,2\r", "2000,two\r")},
                {"nan", 5, edited("2000,2\r", "nan,2\r")},
                {"infinity", 5, edited("2000,2\r", "2000,-inf\r")},
                {"double_overflow", 5, edited("2000,2\r", "1E+999,2\r")},
                {"single_overflow", 5, edited("0,0,0,10000", "0,0,1E+39,10000")},
                {"resolution_below_10", 5, edited("10000", "9.99")},
                {"resolution_above_200000", 5, edited("10000", "200001")},
                {"zero_length", 240, edited("5,2000", "0,2000")},
                {"unquoted_string", 5, edited("\"simp\"", "simp")},
                {"unknown_support_kind", 5, edited("\"simp\"", "\"fixed\"")},
                {"index_beyond_table", 5, edited("\"pt1\"", "\"pt2\"")},
                {"unknown_kind", 5, edited("\"pt1\"", "\"xx1\"")},
                {"unknown_unit", 5, edited("\"m\"", "\"yd\"")},
                {"three_cantilevers", 10,
                 "0,0,0,3,0,0,0,3,0,\r\n10,0,0,0,0,0,0\r\n0,0,0,10000,#FALSE#,#FALSE#\r\n"
                 "0,\"cant\"\r\n10,\"cant\"\r\n5,\"cant\"\r\n"},
                {"text_after_last_line", 5, kWorkedExample + "junk\r\n"},
                {"current_read_as_version1", 5, kWorkedExample, LoadFormat::version1}};
    for (const auto& row : rows) {
        const std::string path = dir.file(row.name);
        if (!row.text.empty()) write_test_file(path, row.text);
        const std::unique_ptr<BeamModel> model = sample_beam(false);
        const LoadResult result = read_load_configuration(path, *model, row.format);
        EXPECT_EQ(result.status.message(), kFileAccessError) << row.name;
        EXPECT_TRUE(result.label_groups.empty() && is_cleared(*model)) << row.name;
        EXPECT_EQ(model->beam_length, row.length) << row.name;
    }
}

// One byte changed, or one field given a hostile value.
std::string mutate(std::string text, std::mt19937& random) {
    static const char* const hostile[] = {"1E+308", "-1E+309", "nan",    "-inf", "-1",
                                          "0",      "2",       "171",    "9.5",  "",
                                          "\"\"",   "#TRUE#",  "\"pt1\""};
    const std::size_t at = random() % text.size();
    if (random() % 3 == 0) {
        text[at] = static_cast<char>(random());
    } else {
        const std::size_t start = text.find_last_of(",\n", at) + 1;
        text.replace(start, text.find_first_of(",\r\n", start) - start,
                     hostile[random() % std::size(hostile)]);
    }
    return text;
}

TEST(LoadReader, TruncatedAndCorruptedFilesAreReadSoundlyOrRefusedCleanly) {
    const std::string sample = load_configuration_text(*sample_beam(true));
    std::vector<std::string> texts;
    for (std::size_t length = 0; length < sample.size(); ++length)
        texts.push_back(sample.substr(0, length));
    std::mt19937 random(20240611);
    for (int run = 0; run < 20000; ++run)
        texts.push_back(mutate(sample, random));
    auto model = std::make_unique<BeamModel>();
    auto again = std::make_unique<BeamModel>();
    std::size_t refused = 0;
    for (const std::string& text : texts) {
        const LoadResult result = read_load_configuration_text(text, *model);
        if (!result.status.ok()) {
            ++refused;
            ASSERT_TRUE(result.status.message() == kFileAccessError && is_cleared(*model)) << text;
            continue;
        }
        // What was accepted must come back unchanged through the writer and the reader; the
        // writer spells a non-finite number in a way no reader accepts.
        const std::string written = load_configuration_text(*model);
        ASSERT_TRUE(read_load_configuration_text(written, *again).status.ok()) << text;
        ASSERT_EQ(load_configuration_text(*again), written) << text;
    }
    // Both outcomes must occur, or the mutations are not reaching the reader's checks.
    EXPECT_GT(refused, texts.size() / 4);
    EXPECT_LT(refused, texts.size());
}

}  // namespace
}  // namespace flexley
