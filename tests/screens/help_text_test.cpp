#include "screens/help_file.h"

#include <QRegularExpression>
#include <QSet>
#include <QTextBlock>
#include <QTextDocument>
#include <gtest/gtest.h>

namespace quillet::test
{

class HelpTextTest : public testing::Test
{
protected:
    void SetUp() override
    {
        file = readHelpFile(QUILLET_HELP_FILE);
        ASSERT_EQ(file.problem, QString());
        document.setHtml(file.html);
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                for (const QString& name : format.anchorNames())
                    anchors.insert(name);
                if (!format.anchorHref().isEmpty())
                    links.insert(format.anchorHref());
            }
        }
    }

    HelpFile file;
    QTextDocument document;
    QSet<QString> anchors;
    QSet<QString> links;
};

TEST_F(HelpTextTest, everyLinkLeadsToAPlaceInTheText)
{
    EXPECT_GE(links.size(), 10);
    for (const QString& link : links)
        EXPECT_TRUE(link.startsWith('#') && anchors.contains(link.mid(1))) << qPrintable(link);
}

TEST_F(HelpTextTest, nothingOutsideTheFileIsReferenced)
{
    static const QRegularExpression outside("src\\s*=|<link|<script|<img|url\\(|@import|://",
                                            QRegularExpression::CaseInsensitiveOption);
    EXPECT_EQ(outside.match(file.html).captured(), QString());
}

TEST_F(HelpTextTest, everyRowOfTheChartHasAHandOfWhichItHoldsAPart)
{
    static const QRegularExpression row("<tr id=\"row(\\d+)\">.*?class=\"hand\">([^<]*)<.*?"
                                        "class=\"hold\">([^<]*)<.*?</tr>",
                                        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression fiveCards("^([2-9TJQKA][cdhs] ){4}[2-9TJQKA][cdhs]$");
    int rows = 0;
    for (auto found = row.globalMatch(file.html); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        EXPECT_EQ(match.captured(1).toInt(), ++rows);
        EXPECT_TRUE(fiveCards.match(match.captured(2)).hasMatch()) << rows;
        const QStringList hand = match.captured(2).split(' ');
        EXPECT_EQ(QSet<QString>(hand.begin(), hand.end()).size(), 5) << rows;
        for (const QString& card : match.captured(3).split(' ', Qt::SkipEmptyParts))
            EXPECT_TRUE(hand.contains(card)) << rows;
    }
    EXPECT_EQ(rows, 21);
}

} // namespace quillet::test
