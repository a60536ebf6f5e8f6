// The load file: its name, its exact text, safe saving, round trips and every refusal.
#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <memory>
#include <random>
#include <regex>
#include <string>
#include <utility>

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

// Doubles keep fifteen significant digits, the single-precision fields seven; every header field
// holds its own value so that none can stand in for another.
const char* const kDigits =
    "1,0,1,0,1,0,1,0,2,\r\n0.333333333333333,2.5E-07,3,4,5,6,7\r\n"
    "1,2,0.3333333,20000,#TRUE#,#FALSE#\r\n2.5E-07,0.3\r\n-8,0.2\r\n"
    "\"pt1\",\"in\",\"lb\"\r\n\"mo1\",\"ft\",\"pf\"\r\n";

// The worked example with the first `from` replaced by `to`.
std::string edited(const std::string& from, const std::string& to) {
    std::string text = kWorkedExample;
    return text.replace(text.find(from), from.size(), to);
}

// A file with these table sizes, every support of one kind and every feature-list entry naming
// point load 1.
std::string file_of_counts(int pt, int di, int mo, int su, int features,
                           const char* support = "5,\"simp\"\r\n") {
    std::string text = std::to_string(pt) + "," + std::to_string(di) + "," + std::to_string(mo) +
                       "," + std::to_string(su) + ",0,0,0,0," + std::to_string(features) +
                       ",\r\n10,0,0,0,0,0,0\r\n0,0,0,10000,#FALSE#,#FALSE#\r\n";
    const int counts[] = {pt, di, mo, su, features};
    const char* const lines[] = {"1,5\r\n", "1,1,0,10\r\n", "1,5\r\n", support,
                                 "\"pt1\",\"\",\"\"\r\n"};
    for (int table = 0; table < 5; ++table)
        for (int i = 0; i < counts[table]; ++i)
            text += lines[table];
    return text;
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

// Whether the model is as clear_beam leaves it: no features, no scales, default settings.
bool is_cleared(const BeamModel& model) {
    static const std::regex cleared(
        "0,0,0,0,0,0,0,0,0,\r\n[^,]+,0,0,0,0,0,0\r\n0,0,0,10000,#\\w+#,#\\w+#\r\n");
    return std::regex_match(load_configuration_text(model), cleared);
}

TEST(LoadFileName, LodIsAppendedUnlessAThreeLetterExtensionIsThere) {
    const std::pair<const char*, const char*> rows[] = {
        {"beam", "beam.lod"}, {"beam.txt", "beam.txt"}, {"abc", "abc.lod"}, {"ab.c", "ab.c.lod"}};
    for (const auto& [typed, completed] : rows)
        EXPECT_EQ(complete_file_name(typed), completed);
}

TEST(LoadFileSave, ReplacesTheWholeFileOrLeavesItAndSaysWhy) {
    TempDir dir;
    const std::string path = dir.file("beam.lod");
    write_test_file(path, std::string(5000, 'x'));
    ASSERT_TRUE(write_load_configuration(*worked_example_beam(), path).ok());
    EXPECT_EQ(read_test_file(path), kWorkedExample);
    // Nothing but the saved file: no temporary file is left behind.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path), {}), 1);
    // With every name for the new text taken, only writing over the old file could still save.
    for (int attempt = 0; attempt < 100; ++attempt)
        std::filesystem::create_directory(path + "." + std::to_string(attempt) + ".tmp");
    EXPECT_EQ(
        write_load_configuration(BeamModel(), path).message(),
        "Unable to save " + path +
            ".  The file could not be written: the folder may be read-only or the disk full.  "
            "Any previous file is unchanged.");
    EXPECT_EQ(read_test_file(path), kWorkedExample);
}

TEST(LoadFile, WrittenBeamsReadBackWithPlaceholdersForRemovedFeatures) {
    TempDir dir;
    for (bool metric : {false, true}) {
        const std::unique_ptr<BeamModel> written = sample_beam(metric);
        ASSERT_TRUE(write_load_configuration(*written, dir.file("beam.lod")).ok());
        const std::unique_ptr<BeamModel> read = sample_beam(!metric);
        std::string groups;
        for (LabelGroup group : read_load_configuration(dir.file("beam.lod"), *read).label_groups)
            groups += group == LabelGroup::feature ? 'f' : 'p';
        EXPECT_EQ(load_configuration_text(*read), load_configuration_text(*written));
        EXPECT_EQ(groups, "pffffp");
    }
}

TEST(LoadReader, TakesLooserSpellingsAndVersion1FilesAndRefusesEveryFaultWithAnEmptyBeam) {
    TempDir dir;
    std::filesystem::create_directory(dir.path / "directory");
    const struct {
        const char* name;
        std::string text;           // empty: no file is written
        std::string expected = "";  // empty: the file is refused
        LoadFormat format = LoadFormat::current;
    } rows[] = {
        {"lf_only", std::regex_replace(kWorkedExample, std::regex("\r\n"), "\n"), kWorkedExample},
        {"no_last_line_end", kWorkedExample.substr(0, kWorkedExample.size() - 2), kWorkedExample},
        {"spaces_before_fields", edited("2000,2\r", "  2000,   2\r"), kWorkedExample},
        {"quoted_numbers", edited("2000,2\r", "\"2000\",\"2\"\r"), kWorkedExample},
        {"exponent_and_leading_point", edited("2000,2\r", "2E+03,.2e1\r"), kWorkedExample},
        {"full_tables", file_of_counts(50, 50, 50, 20, 170), file_of_counts(50, 50, 50, 20, 170)},
        {"digits", kDigits, kDigits},
        // Version 1 knew only English units and uniform distributed loads.
        {"version1", kVersion1Text,
         "2,1,0,1,2,1,0,1,4,\r\n120,500,0,0,0,12,0\r\n6,100,29000000,10000,#FALSE#,#FALSE#\r\n"
         "0,30\r\n500,60\r\n12,12,0,120\r\n0,\"simp\"\r\n\"pt1\",\"ft\",\"lb\"\r\n"
         "\"pt2\",\"ft\",\"lb\"\r\n\"di1\",\"ft\",\"pf\"\r\n\"su1\",\"ft\",\"lb\"\r\n",
         LoadFormat::version1},
        {"missing_file", ""},
        {"directory", ""},
        {"premature_end", kWorkedExample.substr(0, kWorkedExample.find("\"su2\""))},
        {"point_loads_beyond_50", file_of_counts(51, 50, 50, 20, 170)},
        {"distributed_beyond_50", file_of_counts(50, 51, 50, 20, 170)},
        {"moments_beyond_50", file_of_counts(50, 50, 51, 20, 170)},
        {"supports_beyond_20", file_of_counts(50, 50, 50, 21, 170)},
        {"features_beyond_170", file_of_counts(50, 50, 50, 20, 171)},
        {"negative_count", file_of_counts(0, 0, 0, 0, -1)},
        {"word_for_number", edited("2000,2\r", "2000,two\r")},
        {"nan", edited("2000,2\r", "nan,2\r")},
        {"infinity", edited("2000,2\r", "2000,-inf\r")},
        {"double_overflow", edited("2000,2\r", "1E+999,2\r")},
        {"resolution_below_10", edited("10000", "9.99")},
        {"resolution_above_200000", edited("10000", "200001")},
        {"zero_length", edited("5,2000", "0,2000")},
        {"unknown_support_kind", edited("\"simp\"", "\"fixed\"")},
        {"index_beyond_table", edited("\"pt1\"", "\"pt2\"")},
        {"unknown_kind", edited("\"pt1\"", "\"xx1\"")},
        {"three_cantilevers", file_of_counts(0, 0, 0, 3, 0, "5,\"cant\"\r\n")},
    };
    for (const auto& row : rows) {
        const std::string path = dir.file(row.name);
        if (!row.text.empty()) write_test_file(path, row.text);
        const std::unique_ptr<BeamModel> model = sample_beam(true);
        const LoadResult result = read_load_configuration(path, *model, row.format);
        if (!row.expected.empty()) {
            EXPECT_EQ(load_configuration_text(*model), row.expected) << row.name;
            continue;
        }
        EXPECT_EQ(result.status.message(), kFileAccessError) << row.name;
        EXPECT_TRUE(result.label_groups.empty() && is_cleared(*model)) << row.name;
    }
}

// One byte changed, or one field given a hostile value.
std::string mutate(std::string text, std::mt19937& random) {
    static const char* const hostile[] = {"1E+308", "-1E+309", "nan", "-inf", "-1",
                                          "0",      "171",     "",    "\"\"", "\"pt1\""};
    const std::size_t at = random() % text.size();
    if (random() % 3 == 0) return text.replace(at, 1, 1, static_cast<char>(random()));
    const std::size_t start = text.find_last_of(",\n", at) + 1;
    return text.replace(start, text.find_first_of(",\r\n", start) - start,
                        hostile[random() % std::size(hostile)]);
}

TEST(LoadReader, TruncatedAndCorruptedFilesAreReadSoundlyOrRefusedCleanly) {
    const std::string sample = load_configuration_text(*sample_beam(true));
    const std::size_t runs = sample.size() + 20000;
    std::mt19937 random(20240611);
    auto model = std::make_unique<BeamModel>();
    std::size_t refused = 0;
    for (std::size_t run = 0; run < runs; ++run) {
        const auto text = run < sample.size() ? sample.substr(0, run) : mutate(sample, random);
        if (!read_load_configuration_text(text, *model).status.ok()) {
            ++refused;
            ASSERT_TRUE(is_cleared(*model)) << text;
            continue;
        }
        // What was accepted must come back unchanged through the writer and the reader; the
        // writer spells a non-finite number in a way no reader accepts.
        const std::string written = load_configuration_text(*model);
        ASSERT_TRUE(read_load_configuration_text(written, *model).status.ok()) << text;
        ASSERT_EQ(load_configuration_text(*model), written) << text;
    }
    // Both outcomes must occur, or the mutations are not reaching the reader's checks.
    EXPECT_GT(refused, runs / 4);
    EXPECT_LT(refused, runs);
}

}  // namespace
}  // namespace flexley
