#include "screens/help_file.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

namespace quillet::test
{

TEST(HelpText, everyLinkLeadsToAPlaceInTheTextAndNothingOutsideIsReferenced)
{
    const HelpFile file = readHelpFile(QUILLET_HELP_FILE);
    ASSERT_EQ(file.problem, QString());
    static const QRegularExpression link("href=\"#?([^\"]*)\"");
    int links = 0;
    for (auto found = link.globalMatch(file.html); found.hasNext(); ++links) {
        const QString place = found.next().captured(1);
        EXPECT_TRUE(file.html.contains("id=\"" + place + '"')) << qPrintable(place);
    }
    EXPECT_GE(links, 10);

    static const QRegularExpression outside("src\\s*=|<link|<script|<img|url\\(|@import|://",
                                            QRegularExpression::CaseInsensitiveOption);
    EXPECT_EQ(outside.match(file.html).captured(), QString());
}

} // namespace quillet::test
