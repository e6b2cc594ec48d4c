#include "screens/help_cards.h"

#include "cards/device_pixels.h"
#include "cards/small_card.h"
#include "engine/card.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPainter>
#include <QRegularExpression>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <vector>

namespace quillet
{

namespace
{

// In logical pixels.
struct Measures {
    double height;
    double width = std::round(height * 0.72);
    double raise = std::round(height / 6);
    double step = width + 2;
};

Measures measuresIn(const QTextDocument& document)
{
    return {std::round(QFontMetricsF(document.defaultFont()).height() * 2.5)};
}

// -1 if this is not a card.
int faceOf(const QString& card)
{
    const auto rank = QStringView(u"A23456789TJQK").indexOf(card.front());
    const auto suit = QStringView(u"cdhs").indexOf(card.back());
    const bool isCard = card.size() == 2 && rank >= 0 && suit >= 0;
    return isCard ? cardIdOf(static_cast<int>(rank) + 1, static_cast<int>(suit)) : -1;
}

// "9c Tc Jc Kc Ad/Ad": the cards, then those that are held. Other names have no cards.
class PictureName
{
public:
    explicit PictureName(const QTextFormat& format)
        : m_parts(format.toImageFormat().name().split('/')),
          m_cards(m_parts.first().split(' ', Qt::SkipEmptyParts))
    {
        m_cards.removeIf([](const QString& card) { return faceOf(card) < 0; });
    }
    [[nodiscard]] const QStringList& cards() const { return m_cards; }
    [[nodiscard]] bool isHeld(const QString& card) const { return m_parts.last().contains(card); }

private:
    QStringList m_parts;
    QStringList m_cards;
};

} // namespace

HelpCards::HelpCards(QTextDocument* document) : QObject(document)
{
    document->documentLayout()->registerHandler(QTextFormat::ImageObject, this);
}

QString HelpCards::withPictures(const QString& html)
{
    static const QRegularExpression spans(
        "<span class=\"(hand|hold)\">((?:[2-9TJQKA][cdhs]\\s?)*)</span>");
    struct Hand {
        qsizetype start;
        QString cards;
        QString held;
    };
    std::vector<Hand> hands;
    for (auto found = spans.globalMatch(html); found.hasNext();) {
        const QRegularExpressionMatch span = found.next();
        const QString cards = span.captured(2).simplified();
        if (span.capturedView(1) == u"hold") {
            if (!hands.empty() && hands.back().held.isNull())
                hands.back().held = cards;
        } else if (!cards.isEmpty()) {
            hands.push_back({span.capturedStart(), cards, {}});
        }
    }
    QString shown;
    qsizetype end = 0;
    for (const Hand& hand : hands) {
        shown += html.mid(end, hand.start - end);
        shown += "<div><img src=\"" + hand.cards + '/' + hand.held + "\"></div>";
        end = hand.start;
    }
    return shown + html.mid(end);
}

QString HelpCards::withoutPictures(QString copied)
{
    static const QRegularExpression pictures("<p [^>]*><img [^>]*></p>\n?|<img [^>]*>|\ufffc\n?");
    return copied.remove(pictures);
}

// At its own size; null for a hand.
QImage HelpCards::pictureIn(const QTextFormat& format)
{
    const QString name = format.toImageFormat().name();
    if (!name.startsWith(":/help/"))
        return {};
    if (!m_pictures.contains(name))
        m_pictures.insert(name, QImage(name));
    return m_pictures.value(name);
}

QSizeF HelpCards::intrinsicSize(QTextDocument* document, int /*position*/,
                                const QTextFormat& format)
{
    if (const QImage picture = pictureIn(format); !picture.isNull()) {
        const double room = document->textWidth() - 2 * document->documentMargin();
        const double share = std::min(1.0, std::max(room, 100.0) / picture.width());
        return QSizeF(picture.size()) * share;
    }
    const Measures card = measuresIn(*document);
    const auto cards = static_cast<double>(PictureName(format).cards().size());
    return {cards * card.step, card.height + card.raise};
}

void HelpCards::drawObject(QPainter* painter, const QRectF& area, QTextDocument* document,
                           int /*position*/, const QTextFormat& format)
{
    if (const QImage picture = pictureIn(format); !picture.isNull()) {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        return painter->drawImage(area, picture);
    }
    const Measures card = measuresIn(*document);
    const InDevicePixels pixels(*painter);
    const QSize size(pixels.length(card.width), pixels.length(card.height));
    QPoint corner = pixels.at(area.topLeft());
    const PictureName picture(format);
    for (const QString& name : picture.cards()) {
        const QPoint lowered(0, picture.isHeld(name) ? 0 : pixels.length(card.raise));
        painter->drawImage(corner + lowered, renderSmallCard(faceOf(name), size));
        corner.rx() += pixels.length(card.step);
    }
}

} // namespace quillet
