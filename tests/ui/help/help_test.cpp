// Documentation, About, System Info and the slide show, reached from both main windows.
#include <QAction>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>

#include "ui/help/about_box.h"
#include "ui/help/documentation_window.h"
#include "ui/help/slide_show.h"
#include "ui/loading/loading_fixture.h"
#include "ui/results/results_window.h"

namespace flexley::testing {
namespace {

class HelpTest : public LoadingFixture {
  protected:
    // The window a help item is chosen on, with that item's name there.
    QWidget& main_window(HelpOrigin origin) {
        window().start(FLEXLEY_EXAMPLES_DIR "/simply-supported-point-load.lod");
        if (origin == HelpOrigin::loading) return window();
        trigger("runcalc");
        return child<ResultsWindow>(window(), "momdisplay");
    }

    static const char* documentation_item(HelpOrigin origin) {
        return origin == HelpOrigin::loading ? "docflexley" : "Docflexley";
    }
};

class HelpFromBothWindows : public HelpTest, public ::testing::WithParamInterface<HelpOrigin> {};

TEST_P(HelpFromBothWindows, DocumentationOpensAtItsWindowsMenusWithEveryTabWritten) {
    QWidget& from = main_window(GetParam());
    child<QAction>(from, documentation_item(GetParam())).trigger();
    auto& documentation = child<DocumentationWindow>(from, "docflexley");
    EXPECT_TRUE(documentation.isVisible());
    EXPECT_EQ(documentation.origin(), GetParam());

    const auto& tabs = child<QTabWidget>(documentation, "tabs");
    QStringList captions;
    for (int k = 0; k < tabs.count(); ++k) {
        captions << tabs.tabText(k);
        const auto* page = qobject_cast<QTextBrowser*>(tabs.widget(k));
        ASSERT_NE(page, nullptr);
        EXPECT_GT(page->toPlainText().size(), 500) << tabs.tabText(k).toStdString();
    }
    EXPECT_EQ(captions, (QStringList{"Description of Menu Items", "Suggested Use",
                                     "Miscellaneous Notes", "Version History"}));
    EXPECT_EQ(tabs.currentIndex(), 0);

    // Choosing it again brings the same window back rather than a second one.
    child<QAction>(from, documentation_item(GetParam())).trigger();
    EXPECT_EQ(from.findChildren<DocumentationWindow*>().size(), 1);
}

TEST_P(HelpFromBothWindows, AboutShowsTheVersionAndTheSystemFacts) {
    QWidget& from = main_window(GetParam());
    child<QAction>(from, "aboutflexley").trigger();
    auto& about = child<AboutBox>(from, "about");
    EXPECT_EQ(about.origin(), GetParam());
    EXPECT_EQ(child<QLabel>(about, "version").text(), "Version 2.2");

    QTest::mouseClick(&child<QPushButton>(about, "sysinfo"), Qt::LeftButton);
    ASSERT_EQ(prompts.shown().size(), 1u);
    EXPECT_EQ(prompts.shown()[0].title, "System Info");
    const QString facts = prompts.shown()[0].text;
    for (const QString& fact :
         {QSysInfo::currentCpuArchitecture(), QString(qVersion()), QString("dots per inch")}) {
        EXPECT_TRUE(facts.contains(fact)) << fact.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, HelpFromBothWindows,
                         ::testing::Values(HelpOrigin::loading, HelpOrigin::calculations),
                         [](const auto& info) {
                             return info.param == HelpOrigin::loading ? "Loading" : "Calculations";
                         });

// Every menu item of both windows is explained on the menu page by its caption.
TEST_F(HelpTest, TheMenuPageNamesEveryMenuItem) {
    QWidget& results = main_window(HelpOrigin::calculations);
    DocumentationWindow& documentation = open_documentation(window(), HelpOrigin::loading);
    const QString text = child<QTextBrowser>(documentation, "menuitems").toPlainText();
    for (QWidget* main : {static_cast<QWidget*>(&window()), &results}) {
        for (const QAction* item : main->findChildren<QAction*>()) {
            if (item->objectName().isEmpty() || item->objectName().startsWith("recentfile")) {
                continue;
            }
            const QString caption = QString(item->text()).remove('&');
            EXPECT_TRUE(text.contains(caption)) << caption.toStdString();
        }
    }
}

TEST_F(HelpTest, TheSlideShowStepsThroughTheShippedScreenshots) {
    const QStringList files = slide_files(slides_folder(settings.shipped_definitions));
    ASSERT_GE(files.size(), 3);
    QWidget& from = main_window(HelpOrigin::loading);
    child<QAction>(from, "aboutflexley").trigger();
    QTest::mouseClick(&child<QPushButton>(from, "slideshow_button"), Qt::LeftButton);
    auto& show = child<SlideShow>(from, "slideshow");
    auto& previous = child<QPushButton>(show, "previous");
    auto& next = child<QPushButton>(show, "next");
    EXPECT_FALSE(previous.isEnabled());
    EXPECT_FALSE(child<QLabel>(show, "picture").pixmap().isNull());
    for (int k = 1; k < files.size(); ++k)
        QTest::mouseClick(&next, Qt::LeftButton);
    EXPECT_EQ(show.current(), files.size() - 1);
    EXPECT_FALSE(next.isEnabled());
    EXPECT_TRUE(
        child<QLabel>(show, "caption").text().startsWith(QString("%1 of %1: ").arg(files.size())));
}

TEST_F(HelpTest, AMissingSlideFolderIsSaid) {
    settings.shipped_definitions = folder.filePath("beams.lst").toStdString();
    QWidget& from = main_window(HelpOrigin::loading);
    child<QAction>(from, "aboutflexley").trigger();
    QTest::mouseClick(&child<QPushButton>(from, "slideshow_button"), Qt::LeftButton);
    EXPECT_EQ(prompts.texts(), QStringList{kNoSlides});
    EXPECT_EQ(from.findChild<SlideShow*>(), nullptr);
}

}  // namespace
}  // namespace flexley::testing
