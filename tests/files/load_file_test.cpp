// The load file: its name, its exact text, safe saving, round trips and every refusal.
#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
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
    BeamModel example;
    ASSERT_TRUE(read_load_configuration_text(kWorkedExample, example).status.ok());
    ASSERT_TRUE(write_load_configuration(example, path).ok());
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

TEST(LoadReader, GivesRemovedFeaturesPlaceholderLabels) {
    BeamModel model;
    const std::string both_removed =
        edited("0,\"simp\"", "-1,\"simp\"", edited("2000,2\r", "0,2\r"));
    EXPECT_EQ(read_load_configuration_text(both_removed, model).label_groups,
              (std::vector{LabelGroup::placeholder, LabelGroup::placeholder, LabelGroup::feature}));
}

TEST(LoadReader, TakesLooserSpellingsAndVersion1FilesAndRefusesEveryFaultSayingWhere) {
    TempDir dir;
    const auto resolution = [](const std::string& value) {
        return edited(",10000,", "," + value + ",");
    };
    // Older files can hold a resolution the engine cannot use; it is brought into range.
    const auto changed = [](const std::string& from, const std::string& to) {
        return "The file's resolution of " + from + " was changed to " + to +
               ", the nearest whole number from 10 to 200,000.";
    };
    const struct {
        std::string text;
        std::string expected;  // the file as read back, or the detail of its refusal
        std::string note = "";
        LoadFormat format = LoadFormat::current;
    } rows[] = {
        {resolution("5.5"), resolution("10"), changed("5.5", "10")},
        {resolution("250000"), resolution("200000"), changed("250000", "200000")},
        {resolution("5000.4"), resolution("5000"), changed("5000.4", "5000")},
        {resolution("200000"), resolution("200000")},

        {std::regex_replace(kWorkedExample, std::regex("\r\n"), "\n"), kWorkedExample},
        {kWorkedExample.substr(0, kWorkedExample.size() - 2), kWorkedExample},
        {edited("2000,2\r", "  \"2E+03\",   .2e1\r"), kWorkedExample},
        {kDigits, kDigits},
        // A removed load acts on nothing, wherever it stood.
        {edited("2000,2\r", "0,6\r"), edited("2000,2\r", "0,6\r")},
        // Version 1 knew only English units and uniform distributed loads.
        {kVersion1Text,
         "2,1,0,1,2,1,0,1,4,\r\n120,500,0,0,0,12,0\r\n6,100,29000000,10000,#FALSE#,#FALSE#\r\n"
         "0,30\r\n500,60\r\n12,12,0,120\r\n0,\"simp\"\r\n\"pt1\",\"ft\",\"lb\"\r\n"
         "\"pt2\",\"ft\",\"lb\"\r\n\"di1\",\"ft\",\"pf\"\r\n\"su1\",\"ft\",\"lb\"\r\n",
         "", LoadFormat::version1},
        {kWorkedExample.substr(0, kWorkedExample.find("\"su2\"")),
         "Line 9: the file ends where feature 3 was expected."},
        {kWorkedExample + "7\r\n", "Line 10: text follows the last feature."},
        {"51,0,0,0,0,0,0,0,51,\r\n",
         "Line 1: the number of point loads, 51, is not a whole number from 0 to 50."},
        {edited("1,0,0,2,1,", "1,0,0,2,2,"),
         "Line 1: the number of point loads drawn, 2, is not a whole number from 0 to 1."},
        {edited("2,3,\r", "2,2.5,\r"),
         "Line 1: the number of features, 2.5, is not a whole number from 0 to 170."},
        {edited("2,3,\r", "2,3,x\r"),
         "Line 1: the tenth field of the counts line, x, must be empty."},
        {edited("5,2000", "0,2000"), "Line 2: the beam length, 0, is not above 0."},
        {edited("\n0,0,0,", "\n0,1E+39,0,"),
         "Line 3: the moment of inertia, 1E+39, is too large for single precision."},
        {edited("#TRUE#,#TRUE#", "#TRUE#,yes"),
         "Line 3: the metric units flag, yes, is neither #TRUE# nor #FALSE#."},
        {edited("2000,2\r", "2000,two\r"),
         "Line 4: the position of point load 1, two, is not a number."},
        {edited("2000,2\r", "2000\r"), "Line 4: the position of point load 1 is missing."},
        {edited("2000,2\r", "2000,2,7\r"), "Line 4: point load 1 has 3 fields instead of 2."},
        {edited("0,\"simp\"", "0,\"simp"),
         "Line 5: support 1 has a quoted text without its closing quote, or with more text after "
         "it before the next comma."},
        // The geometry rules, one row for each kind of feature.
        {edited("2000,2\r", "2000,6\r"),
         "Line 4: point load position 6 lies outside the beam (0 to 5)."},
        {edited("12,0,120", "12,0,130", kVersion1Text),
         "Line 6: distributed load end 130 does not lie beyond its start (0) and at most at the "
         "beam's end (120).",
         "", LoadFormat::version1},
        {edited("5,\"simp\"", "3,\"cant\""),
         "Line 6: cantilever support at 3 is not at an end of the beam (0 or 5)."},
        {edited("0,\"simp\"", "0,simp"),
         "Line 5: the kind of support 1, simp, is not a quoted text."},
        // A removed support occupies nothing, but its kind must still be one there is.
        {edited("0,\"simp\"", "-1,\"fixed\""),
         "Line 5: support kind \"fixed\" is neither \"simp\" nor \"cant\"."},
        {edited("\"pt1\"", "\"pt2\""),
         "Line 7: the entry of feature 1, \"pt2\", names point load 2, but the file holds 1."},
        {edited("\"pt1\"", "\"xx1\""),
         "Line 7: the entry of feature 1, \"xx1\", is not a kind code (pt, di, mo, su) followed "
         "by a table index."},
        {edited("\"m\",\"N\"", "\"yd\",\"N\""),
         "Line 7: the position unit of feature 1, \"yd\", is not one of \"\", \"in\", \"ft\", "
         "\"m\"."},
        {edited("\"su2\"", "\"su1\""),
         "Line 9: the entry of feature 3, \"su1\", names support 1, which feature 2 already "
         "names."},
        {edited("2,3,\r", "2,2,\r", kWorkedExample.substr(0, kWorkedExample.find("\"su2\""))),
         "Line 6: support 2 is named by no feature."},
    };
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        SCOPED_TRACE(rows[i].text);
        const std::string path = dir.file(std::to_string(i));
        write_test_file(path, rows[i].text);
        BeamModel model;
        ASSERT_TRUE(read_load_configuration_text(kWorkedExample, model).status.ok());
        model.results_valid = model.results_partial = true;
        const LoadResult result = read_load_configuration(path, model, rows[i].format);
        EXPECT_FALSE(model.results_valid || model.results_partial);
        if (result.status.ok()) {
            EXPECT_EQ(load_configuration_text(model), rows[i].expected);
            EXPECT_EQ(result.status.message(), rows[i].note);
            EXPECT_EQ(result.status.is_warning(), !rows[i].note.empty());
            continue;
        }
        EXPECT_EQ(result.status.message(), kFileAccessError);
        EXPECT_EQ(result.status.detail(), rows[i].expected);
        EXPECT_TRUE(result.label_groups.empty() && is_cleared(model));
    }
    BeamModel model;
    EXPECT_EQ(read_load_configuration(dir.file("missing"), model).status.detail(),
              "The file does not exist.");
    EXPECT_EQ(read_load_configuration(dir.path.string(), model).status.detail(),
              "It is a folder, not a file.");
}

}  // namespace
}  // namespace flexley
