#pragma once

#include <QTextBrowser>

namespace quillet
{

// The help text with its colours, links, search and font size. It shows only the given text and
// loads nothing else from disk or network.
class HelpPage : public QTextBrowser
{
    Q_OBJECT

public:
    enum class Found { next, afterWrapping, nowhere };

    explicit HelpPage(QWidget* parent = nullptr);

    void showText(const QString& html);
    void showContents();

    // Selects the next match, and wraps at the end.
    Found search(const QString& text, QTextDocument::FindFlags direction);
    // Selects the first match at or after the current one, while the text is being typed.
    Found searchWhileTyping(const QString& text);

    void zoomBy(int points);
    void zoomToNormal();

signals:
    void webLinkClicked(const QUrl& address);

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

private:
    void applyPalette();
    void followLink(const QUrl& target);
    void searchFromVisibleText();

    QString m_html;
    qreal m_normalSize;
};

} // namespace quillet
