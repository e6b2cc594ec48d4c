#pragma once

#include <QTextBrowser>

namespace quillet
{

// The help text itself: its colours, its links, the search in it and its size. It shows what it
// is given and loads nothing else, from disk or network.
class HelpPage : public QTextBrowser
{
    Q_OBJECT

public:
    enum class Found { onward, afterWrapping, nowhere };

    explicit HelpPage(QWidget* parent = nullptr);

    void showText(const QString& html);
    void showContents();

    // Selects the next place of the text, going round at the end.
    Found search(const QString& text, QTextDocument::FindFlags direction);
    // Selects the first place at or after the present one, for a text that is being typed.
    Found searchWhileTyping(const QString& text);

    void zoomBy(int points);
    void zoomToNormal();

signals:
    void webLinkClicked(const QUrl& address);

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void changeEvent(QEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

private:
    void takeColoursFromPalette();
    void followLink(const QUrl& target);
    void searchOnFromHere();

    QString m_html;
    qreal m_normalSize;
};

} // namespace quillet
