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

// The text (the worked example unless given) with the first `from` replaced by `to`.
std::string edited(const std::string& from, const std::string& to,
                   std::string text = kWorkedExample) {
    return text.replace(text.find(from), from.size(), to);
}

// A 20 in. beam with every table full: supports at 0 to 19, each entry named by one feature.
std::string full_tables() {
    std::string text =
        "50,50,50,20,0,0,0,0,170,\r\n20,0,0,0,0,0,0\r\n0,0,0,10000,#FALSE#,#FALSE#\r\n";
    const std::pair<const char*, int> tables[] = {{"pt", 50}, {"di", 50}, {"mo", 50}, {"su", 20}};
    for (const auto& [code, count] : tables) {
        for (int i = 0; i < count; ++i) {
            const std::string_view kind = code;
            text += kind == "di"   ? "1,1,0,10\r\n"
                    : kind == "su" ? std::to_string(i) + ",\"simp\"\r\n"
                                   : "1,5\r\n";
        }
    }
    for (const auto& [code, count] : tables)
        for (int i = 1; i <= count; ++i)
            text += "\"" + std::string(code) + std::to_string(i) + "\",\"\",\"\"\r\n";
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

TEST(LoadReader, TakesLooserSpellingsAndVersion1FilesAndRefusesEveryFaultSayingWhere) {
    TempDir dir;
    std::filesystem::create_directory(dir.path / "directory");
    const std::string removed_off_beam = edited("2000,2\r", "0,6\r");
    const struct {
        const char* name;
        std::string text;      // empty: no file is written
        std::string expected;  // the file as read back, or the detail of its refusal
        LoadFormat format = LoadFormat::current;
    } rows[] = {
        {"lf_only", std::regex_replace(kWorkedExample, std::regex("\r\n"), "\n"), kWorkedExample},
        {"no_last_line_end", kWorkedExample.substr(0, kWorkedExample.size() - 2), kWorkedExample},
        {"spaces_before_fields", edited("2000,2\r", "  2000,   2\r"), kWorkedExample},
        {"quoted_numbers", edited("2000,2\r", "\"2000\",\"2\"\r"), kWorkedExample},
        {"exponent_and_leading_point", edited("2000,2\r", "2E+03,.2e1\r"), kWorkedExample},
        {"full_tables", full_tables(), full_tables()},
        {"digits", kDigits, kDigits},
        // A removed load acts on nothing, wherever it stood.
        {"removed_load_off_the_beam", removed_off_beam, removed_off_beam},
        // Version 1 knew only English units and uniform distributed loads.
        {"version1", kVersion1Text,
         "2,1,0,1,2,1,0,1,4,\r\n120,500,0,0,0,12,0\r\n6,100,29000000,10000,#FALSE#,#FALSE#\r\n"
         "0,30\r\n500,60\r\n12,12,0,120\r\n0,\"simp\"\r\n\"pt1\",\"ft\",\"lb\"\r\n"
         "\"pt2\",\"ft\",\"lb\"\r\n\"di1\",\"ft\",\"pf\"\r\n\"su1\",\"ft\",\"lb\"\r\n",
         LoadFormat::version1},
        {"missing_file", "", "The file does not exist."},
        {"directory", "", "It is a folder, not a file."},
        {"premature_end", kWorkedExample.substr(0, kWorkedExample.find("\"su2\"")),
         "Line 9: the file ends where feature 3 was expected."},
        {"text_after_the_end", kWorkedExample + "7\r\n", "Line 10: text follows the last feature."},
        {"point_loads_beyond_50", "51,0,0,0,0,0,0,0,51,\r\n",
         "Line 1: the number of point loads, 51, is not a whole number from 0 to 50."},
        {"distributed_beyond_50", "0,51,0,0,0,0,0,0,51,\r\n",
         "Line 1: the number of distributed loads, 51, is not a whole number from 0 to 50."},
        {"moments_beyond_50", "0,0,51,0,0,0,0,0,51,\r\n",
         "Line 1: the number of moments, 51, is not a whole number from 0 to 50."},
        {"supports_beyond_20", "0,0,0,21,0,0,0,0,21,\r\n",
         "Line 1: the number of supports, 21, is not a whole number from 0 to 20."},
        {"features_beyond_170", "0,0,0,0,0,0,0,0,171,\r\n",
         "Line 1: the number of features, 171, is not a whole number from 0 to 170."},
        {"drawn_beyond_count", edited("1,0,0,2,1,", "1,0,0,2,2,"),
         "Line 1: the number of point loads drawn, 2, is not a whole number from 0 to 1."},
        {"fraction_count", edited("2,3,\r", "2,2.5,\r"),
         "Line 1: the number of features, 2.5, is not a whole number from 0 to 170."},
        {"tenth_field_filled", edited("2,3,\r", "2,3,x\r"),
         "Line 1: the tenth field of the counts line, x, must be empty."},
        {"zero_length", edited("5,2000", "0,2000"), "Line 2: the beam length, 0, is not above 0."},
        {"single_overflow", edited("\n0,0,0,", "\n0,1E+39,0,"),
         "Line 3: the moment of inertia, 1E+39, is too large for single precision."},
        {"not_a_flag", edited("#TRUE#,#TRUE#", "#TRUE#,yes"),
         "Line 3: the metric units flag, yes, is neither #TRUE# nor #FALSE#."},
        {"word_for_number", edited("2000,2\r", "2000,two\r"),
         "Line 4: the position of point load 1, two, is not a number."},
        {"missing_field", edited("2000,2\r", "2000\r"),
         "Line 4: the position of point load 1 is missing."},
        {"extra_field", edited("2000,2\r", "2000,2,7\r"),
         "Line 4: point load 1 has 3 fields instead of 2."},
        {"unclosed_quote", edited("0,\"simp\"", "0,\"simp"),
         "Line 5: support 1 has a quoted text without its closing quote, or with more text after "
         "it before the next comma."},
        {"unquoted_kind", edited("0,\"simp\"", "0,simp"),
         "Line 5: the kind of support 1, simp, is not a quoted text."},
        // A removed support occupies nothing, but its kind must still be one there is.
        {"removed_support_of_unknown_kind", edited("0,\"simp\"", "-1,\"fixed\""),
         "Line 5: support kind \"fixed\" is neither \"simp\" nor \"cant\"."},
        {"index_beyond_table", edited("\"pt1\"", "\"pt2\""),
         "Line 7: the entry of feature 1, \"pt2\", names point load 2, but the file holds 1."},
        {"unknown_kind", edited("\"pt1\"", "\"xx1\""),
         "Line 7: the entry of feature 1, \"xx1\", is not a kind code (pt, di, mo, su) followed "
         "by a table index."},
        {"unknown_unit", edited("\"m\",\"N\"", "\"yd\",\"N\""),
         "Line 7: the position unit of feature 1, \"yd\", is not one of \"\", \"in\", \"ft\", "
         "\"m\"."},
        {"entry_named_twice", edited("\"su2\"", "\"su1\""),
         "Line 9: the entry of feature 3, \"su1\", names support 1, which feature 2 already "
         "names."},
        {"entry_named_by_no_feature",
         edited("2,3,\r", "2,2,\r", kWorkedExample.substr(0, kWorkedExample.find("\"su2\""))),
         "Line 6: support 2 is named by no feature."},
    };
    for (const auto& row : rows) {
        const std::string path = dir.file(row.name);
        if (!row.text.empty()) write_test_file(path, row.text);
        const std::unique_ptr<BeamModel> model = sample_beam(true);
        const LoadResult result = read_load_configuration(path, *model, row.format);
        if (result.status.ok()) {
            EXPECT_EQ(load_configuration_text(*model), row.expected) << row.name;
            continue;
        }
        EXPECT_EQ(result.status.message(), kFileAccessError) << row.name;
        EXPECT_EQ(result.status.detail(), row.expected) << row.name;
        EXPECT_TRUE(result.label_groups.empty() && is_cleared(*model)) << row.name;
    }
}

// Older files can hold a resolution the engine cannot use; it is brought into range with a note,
// and the beam is read as it would be otherwise.
TEST(LoadReader, BringsTheResolutionToTheNearestWholeAllowedValueWithANote) {
    const struct {
        const char* in_file;
        float resolution;
        bool noted;
    } rows[] = {{"5.5", 10, true},
                {"-3", 10, true},
                {"250000", 200000, true},
                {"5000.4", 5000, true},
                {"200000", 200000, false}};
    for (const auto& row : rows) {
        BeamModel model;
        model.results_valid = model.results_partial = true;
        const LoadResult result = read_load_configuration_text(
            edited(",10000,", "," + std::string(row.in_file) + ","), model);
        const std::string note = "The file's resolution of " + std::string(row.in_file) +
                                 " was changed to " + std::to_string(int(row.resolution)) +
                                 ", the nearest whole number from 10 to 200,000.";
        EXPECT_TRUE(result.status.ok()) << row.in_file;
        EXPECT_EQ(result.status.is_warning(), row.noted) << row.in_file;
        EXPECT_EQ(result.status.message(), row.noted ? note : "") << row.in_file;
        EXPECT_EQ(model.resolution, row.resolution) << row.in_file;
        EXPECT_EQ(result.label_groups.size(), 3u) << row.in_file;
        EXPECT_FALSE(model.results_valid || model.results_partial) << row.in_file;
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
