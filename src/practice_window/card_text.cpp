#include "practice_window/card_text.h"

#include "cards/card_names.h"
#include "odds/hand_text.h"

#include <QRegularExpression>

#include <array>

namespace quillet::practice_window
{

namespace
{

template <typename Name>
QString withCards(const QString& text, const Name& name)
{
    static const QRegularExpression codes("\\b([A2-9TJQK])([cdhs])\\b");
    QString result;
    qsizetype end = 0;
    for (auto found = codes.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch code = found.next();
        result += text.mid(end, code.capturedStart() - end) + name(code);
        end = code.capturedEnd();
    }
    return result + text.mid(end);
}

qsizetype suitOf(const QRegularExpressionMatch& code)
{
    return QStringView(u"cdhs").indexOf(code.capturedView(2));
}

} // namespace

QString withSuitSigns(const QString& text)
{
    return withCards(text, [](const QRegularExpressionMatch& code) {
        const QString rank = code.captured(1);
        return (rank == "T" ? QString("10") : rank) + QStringView(u"♣♦♥♠")[suitOf(code)];
    });
}

QString spokenCardCodes(const QString& text)
{
    static const QRegularExpression between("(?<=\\b[A2-9TJQK][cdhs]) (?=[A2-9TJQK][cdhs]\\b)");
    QString listed = text;
    listed.replace(between, ", ");
    return withCards(listed, [](const QRegularExpressionMatch& code) {
        const auto rank = QStringView(u"A23456789TJQK").indexOf(code.capturedView(1));
        return cardName(static_cast<int>(4 * rank + suitOf(code)));
    });
}

} // namespace quillet::practice_window
