#include "coach/strategy_chart.h"
#include "platform/colour_contrast.h"
#include "platform/desktop_colours.h"
#include "screens/help_colours.h"
#include "screens/help_file.h"
#include "screens/help_viewer.h"
#include "screens/single_window.h"
#include "tests/kit/window_driving.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextTable>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::test
{

using testing::ElementsAre;
using testing::HasSubstr;

class HelpViewerTest : public testing::Test
{
protected:
    QString fileWith(const QByteArray& bytes)
    {
        QFile file(m_folder.filePath("quillet.hlp"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    // A contents page and two distant sections, each with one "needle".
    QString helpWithTwoSections()
    {
        const QByteArray filling = QByteArray("<p>hay</p>").repeated(80);
        return fileWith("<h1 id='contents'>Contents</h1><p><a href='#one'>one</a></p>" + filling +
                        "<h2 id='one'>One</h2><p>Needle <a href='#contents'>up</a></p>" + filling +
                        "<h2 id='two'>Two</h2><p>needle</p>" + filling);
    }
    HelpViewer& present(const QString& path)
    {
        HelpViewer::present(&owner, std::ref(pages), path);
        auto* viewer = openWindow<HelpViewer>();
        EXPECT_TRUE(viewer != nullptr && QTest::qWaitForWindowExposed(viewer));
        return *viewer;
    }
    static HelpPage& pageOf(HelpViewer& viewer) { return control<HelpPage>(viewer, "helpPage"); }
    static std::string shownFor(HelpViewer& viewer)
    {
        return pageOf(viewer).toPlainText().toStdString();
    }
    // Presses the key of the command.
    static void press(HelpViewer& viewer, int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(viewer.windowHandle(), static_cast<Qt::Key>(key), modifiers);
    }

    QTemporaryDir m_folder;
    QWidget owner;
    RecordingShell pages;
};

TEST_F(HelpViewerTest, aFileThatCannotBeShownIsReportedInTheWindowWithItsPath)
{
    const QString missing = m_folder.filePath("a<b>.hlp");
    EXPECT_THAT(shownFor(present(missing)), HasSubstr("is missing"));
    EXPECT_THAT(shownFor(present(missing)), HasSubstr(missing.toStdString()));
    EXPECT_THAT(shownFor(present(m_folder.path())), HasSubstr("not a regular file"));
    EXPECT_THAT(shownFor(present(fileWith({}))), HasSubstr("is empty"));
    EXPECT_THAT(shownFor(present(fileWith("caf\xe9"))), HasSubstr("not UTF-8 text"));

    const QString path = fileWith("x");
    ASSERT_TRUE(QFile::resize(path, 4 * 1024 * 1024 + 1));
    EXPECT_THAT(shownFor(present(path)), HasSubstr("too large"));
    EXPECT_THAT(shownFor(present(path)), HasSubstr(path.toStdString()));

    EXPECT_EQ(shownFor(present(fileWith("<p>caf\xc3\xa9 &ndash; open</p>"))),
              "caf\u00e9 \u2013 open");
}

TEST_F(HelpViewerTest, linksBackForwardAndContentsMoveThroughTheText)
{
    HelpViewer& viewer = present(helpWithTwoSections());
    const QScrollBar& bar = *pageOf(viewer).verticalScrollBar();
    EXPECT_EQ(bar.value(), 0);
    press(viewer, Qt::Key_Tab);
    press(viewer, Qt::Key_Return);
    const int sectionOne = bar.value();
    EXPECT_GT(sectionOne, 0);
    press(viewer, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(bar.value(), 0);
    press(viewer, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(bar.value(), sectionOne);
    QPalette theme(Qt::black);
    theme.setColor(QPalette::Inactive, QPalette::Highlight, Qt::red);
    viewer.setPalette(theme);
    EXPECT_EQ(bar.value(), sectionOne) << "in another theme";
    EXPECT_GT(pageOf(viewer).textCursor().position(), 0) << "where a search goes on";
    const QPalette colours = pageOf(viewer).palette();
    EXPECT_EQ(colours.color(QPalette::Inactive, QPalette::Highlight),
              colours.color(QPalette::Active, QPalette::Highlight));
    press(viewer, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(bar.value(), 0) << "one step back";
    press(viewer, Qt::Key_Right, Qt::AltModifier);
    press(viewer, Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(bar.value(), 0);

    const auto size = [&] { return pageOf(viewer).font().pointSizeF(); };
    const double normal = size();
    press(viewer, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(size(), normal);
    press(viewer, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(size(), normal);
    for (int i = 0; i < 40; ++i)
        press(viewer, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_LT(size(), normal);
    EXPECT_GE(size(), 6);
    EXPECT_LE(viewer.height(), viewer.screen()->availableSize().height() - 80);
}

TEST(HelpColours, linksAreReadableOnEveryBackground)
{
    for (const QColor ground : {Qt::white, Qt::black, Qt::darkBlue}) {
        QPalette desktop;
        desktop.setColor(QPalette::Base, ground);
        desktop.setColor(QPalette::Link, ground == Qt::darkBlue ? ground : QColor(Qt::gray));
        EXPECT_GE(contrast(readableLinkColour(desktop), ground), 4.5) << ground.value();
    }
}

TEST_F(HelpViewerTest, theSearchWrapsInBothDirectionsAndSaysSo)
{
    HelpViewer& viewer = present(helpWithTwoSections());
    auto& message = control<QLabel>(viewer, "helpMessage");
    const auto found = [&] { return pageOf(viewer).textCursor().selectionStart(); };

    press(viewer, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&control(viewer, "helpSearch"), "needle");
    const int first = found();
    EXPECT_EQ(pageOf(viewer).textCursor().selectedText(), "Needle");
    press(viewer, Qt::Key_Return);
    EXPECT_GT(found(), first);
    press(viewer, Qt::Key_F3);
    EXPECT_EQ(found(), first);
    EXPECT_EQ(message.text(), "Reached the end; continued from the top.");
    press(viewer, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_GT(found(), first);
    EXPECT_EQ(message.text(), "Reached the top; continued from the end.");
    press(viewer, Qt::Key_F3);
    press(viewer, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_TRUE(message.text().startsWith("Reached the top"));
    press(viewer, Qt::Key_F3);

    press(viewer, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&control(viewer, "helpSearch"), "<b>");
    EXPECT_EQ(message.text(), "\"<b>\" does not occur in the help.");
    EXPECT_EQ(found(), first);
    viewer.setFont(QFont(viewer.font().family(), 24));
    viewer.resize(viewer.minimumSizeHint().expandedTo(QSize(300, 300)));
    QApplication::processEvents();
    EXPECT_FALSE(message.visibleRegion().isEmpty()) << "in a narrow window of large letters";

    press(viewer, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&control(viewer, "helpSearch"), "two");
    QApplication::processEvents();
    press(viewer, Qt::Key_F3);
    QApplication::processEvents();
    EXPECT_TRUE(message.text().startsWith("Reached the end"));
    const QRect page = pageOf(viewer).viewport()->rect();
    EXPECT_TRUE(page.contains(pageOf(viewer).cursorRect())) << "the message covers the match";
}

TEST(HelpText, everyLinkHasATargetInTheTextAndNothingOutsideIsReferenced)
{
    const QString html = readHelpFile(QUILLET_HELP_FILE);
    static const QRegularExpression link("href=\"#?([^\"]*)\"");
    int links = 0;
    for (auto found = link.globalMatch(html); found.hasNext(); ++links) {
        const QString place = found.next().captured(1);
        EXPECT_TRUE(html.contains("id=\"" + place + '"')) << qPrintable(place);
    }
    EXPECT_GE(links, 10);

    static const QRegularExpression outside("src\\s*=|<link|<script|<img|url\\(|@import|://",
                                            QRegularExpression::CaseInsensitiveOption);
    EXPECT_EQ(outside.match(html).captured(), QString());
}

TEST(HelpText, fitsANarrowWindowAndHasTheColoursOfTheChart)
{
    HelpPage page;
    page.resize(400, 700);
    page.show();
    page.showText(readHelpFile(QUILLET_HELP_FILE));
    for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
        const QString text = block.text();
        for (int line = 1; line < block.layout()->lineCount(); ++line) {
            const int start = block.layout()->lineAt(line).textStart();
            EXPECT_FALSE(text[start - 1].isLetter() && text[start].isLetter()) << qPrintable(text);
        }
    }
    StrategyChart chart;
    QTextCursor at(page.document());
    const auto shown = [&](const char* words) {
        at = page.document()->find(words, at, QTextDocument::FindWholeWords);
        const QBrush behind = at.charFormat().background();
        return behind != Qt::NoBrush || at.currentTable() == nullptr
                   ? behind.color()
                   : at.currentTable()->cellAt(at).format().background().color();
    };
    chart.highlightBestPlay(4);
    EXPECT_EQ(shown("Light red"), colourOf(chart.colours(3).background));
    chart.highlightMissedPlay(4);
    EXPECT_EQ(shown("Red"), colourOf(chart.colours(3).background));
    chart.highlightWinner(4);
    EXPECT_EQ(shown("Green"), colourOf(chart.colours(3).background));
    chart.highlightWinner(2);
    EXPECT_EQ(shown("brighter green"), colourOf(chart.colours(1).background));
}

} // namespace quillet::test
