#pragma once

#include <QHash>
#include <QImage>
#include <QObject>
#include <QString>
#include <QTextObjectInterface>

namespace quillet
{

// Shows the pictures of the program that the help names (":/help/..."), no wider than the page, and
// the hands of the help as small cards: a picture before each hand, painted at the scale of
// the display and in proportion to the font. The hand stays below it as text, which can be read
// aloud, found and copied.
class HelpCards : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    // Paints the pictures of this document, which owns it.
    explicit HelpCards(QTextDocument* document);

    // A hand is the text of a span of class "hand". The cards of the next span of class "hold" are
    // held and painted higher.
    [[nodiscard]] static QString withPictures(const QString& html);

    // Copied text or HTML without its pictures.
    [[nodiscard]] static QString withoutPictures(QString copied);

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& area, QTextDocument* document, int position,
                    const QTextFormat& format) override;

private:
    [[nodiscard]] QImage pictureIn(const QTextFormat& format);

    QHash<QString, QImage> m_pictures; // by name, decoded once
};

} // namespace quillet
