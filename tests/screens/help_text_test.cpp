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

TEST_F(HelpTextTest, everyLinkLeadsToAPlaceInTheTextAndNothingOutsideIsReferenced)
{
    EXPECT_GE(links.size(), 10);
    for (const QString& link : links)
        EXPECT_TRUE(link.startsWith('#') && anchors.contains(link.mid(1))) << qPrintable(link);

    static const QRegularExpression outside("src\\s*=|<link|<script|<img|url\\(|@import|://",
                                            QRegularExpression::CaseInsensitiveOption);
    EXPECT_EQ(outside.match(file.html).captured(), QString());
}

} // namespace quillet::test
