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

class HelpFromBothWindows : public LoadingFixture,
                            public ::testing::WithParamInterface<HelpOrigin> {
  protected:
    // The window the help items are chosen on.
    QWidget& main_window() {
        window().start(FLEXLEY_EXAMPLES_DIR "/simply-supported-point-load.lod");
        if (GetParam() == HelpOrigin::loading) return window();
        trigger("runcalc");
        return child<ResultsWindow>(window(), "momdisplay");
    }
};

TEST_P(HelpFromBothWindows, DocumentationOpensWithEveryTabWrittenAndEveryMenuItemExplained) {
    QWidget& from = main_window();
    child<QAction>(from, GetParam() == HelpOrigin::loading ? "docflexley" : "Docflexley").trigger();
    auto& documentation = child<DocumentationWindow>(from, "docflexley");
    EXPECT_EQ(documentation.origin(), GetParam());

    const auto& tabs = child<QTabWidget>(documentation, "tabs");
    QStringList captions;
    for (int k = 0; k < tabs.count(); ++k)
        captions << tabs.tabText(k);
    EXPECT_EQ(captions, (QStringList{"Description of Menu Items", "Suggested Use",
                                     "Miscellaneous Notes", "Version History"}));
    const auto pages = documentation.findChildren<QTextBrowser*>();
    EXPECT_EQ(pages.size(), 4);
    for (const QTextBrowser* page : pages)
        EXPECT_GT(page->toPlainText().size(), 500) << page->objectName().toStdString();

    // Every menu item of the window is explained on the menu page by its caption.
    const QString menu_page = child<QTextBrowser>(documentation, "menuitems").toPlainText();
    for (const QAction* item : from.findChildren<QAction*>()) {
        if (item->objectName().isEmpty() || item->objectName().startsWith("recentfile")) continue;
        EXPECT_TRUE(menu_page.contains(QString(item->text()).remove('&')))
            << item->text().toStdString();
    }
}

TEST_P(HelpFromBothWindows, AboutShowsTheVersionTheSystemFactsAndTheSlides) {
    QWidget& from = main_window();
    child<QAction>(from, "aboutflexley").trigger();
    auto& about = child<AboutBox>(from, "about");
    EXPECT_EQ(child<QLabel>(about, "version").text(), "Version 2.2");
    QTest::mouseClick(&child<QPushButton>(about, "sysinfo"), Qt::LeftButton);
    ASSERT_EQ(prompts.shown().size(), 1u);
    EXPECT_EQ(prompts.shown()[0].title, "System Info");
    for (const QString& fact : {QSysInfo::currentCpuArchitecture(), QString(qVersion())})
        EXPECT_TRUE(prompts.shown()[0].text.contains(fact)) << fact.toStdString();

    const int slides = slide_files(slides_folder(settings.shipped_definitions)).size();
    ASSERT_GE(slides, 3);
    QTest::mouseClick(&child<QPushButton>(about, "slideshow_button"), Qt::LeftButton);
    auto& show = child<SlideShow>(about, "slideshow");
    auto& next = child<QPushButton>(show, "next");
    EXPECT_FALSE(child<QLabel>(show, "picture").pixmap().isNull());
    for (int k = 1; k < slides; ++k)
        QTest::mouseClick(&next, Qt::LeftButton);
    EXPECT_FALSE(next.isEnabled());
    EXPECT_TRUE(
        child<QLabel>(show, "caption").text().startsWith(QString("%1 of %1: ").arg(slides)));
}

INSTANTIATE_TEST_SUITE_P(Windows, HelpFromBothWindows,
                         ::testing::Values(HelpOrigin::loading, HelpOrigin::calculations));

}  // namespace
}  // namespace flexley::testing
