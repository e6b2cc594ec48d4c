#include "screens/help_page.h"

#include "screens/help_cards.h"
#include "screens/help_colours.h"

#include <QEvent>
#include <QMimeData>
#include <QResizeEvent>
#include <QScrollBar>
#include <QTextDocumentFragment>

#include <algorithm>

namespace quillet
{

namespace
{

constexpr const char* documentAddress = "quillet-help:/quillet.hlp";

} // namespace

HelpPage::HelpPage(QWidget* parent) : QTextBrowser(parent), m_normalSize(font().pointSizeF())
{
    setOpenLinks(false);
    setWordWrapMode(QTextOption::WordWrap); // scrolls sideways if a word is too long
    document()->setDocumentMargin(16);
    new HelpCards(document());
    applyPalette();
    connect(this, &QTextBrowser::anchorClicked, this, &HelpPage::followLink);
    connect(this, &QTextBrowser::sourceChanged, this, &HelpPage::searchFromVisibleText);
}

void HelpPage::showText(const QString& html)
{
    const QString withPictures = HelpCards::withPictures(html);
    if (withPictures != m_html) {
        m_html = withPictures;
        if (!source().isEmpty())
            setHtml(m_html);
        clearHistory();
    }
    showContents();
}

void HelpPage::showContents()
{
    setSource(QUrl(documentAddress));
}

QVariant HelpPage::loadResource(int type, const QUrl& name)
{
    const bool isText = type == QTextDocument::HtmlResource &&
                        name.adjusted(QUrl::RemoveFragment) == QUrl(documentAddress);
    return isText ? m_html : QVariant();
}

void HelpPage::followLink(const QUrl& target)
{
    if (target.adjusted(QUrl::RemoveFragment) == QUrl(documentAddress))
        setSource(target);
    else if (target.scheme() == "http" || target.scheme() == "https")
        emit webLinkClicked(target);
}

// After a jump the next search starts at the first visible line.
void HelpPage::searchFromVisibleText()
{
    setTextCursor(cursorForPosition(QPoint(0, 0)));
}

HelpPage::Found HelpPage::search(const QString& text, QTextDocument::FindFlags direction)
{
    if (find(text, direction))
        return Found::next;
    const QTextCursor before = textCursor();
    const int scrolledTo = verticalScrollBar()->value();
    QTextCursor otherEnd(document());
    if (direction.testFlag(QTextDocument::FindBackward))
        otherEnd.movePosition(QTextCursor::End);
    setTextCursor(otherEnd);
    if (find(text, direction))
        return Found::afterWrapping;
    setTextCursor(before);
    verticalScrollBar()->setValue(scrolledTo);
    return Found::nowhere;
}

HelpPage::Found HelpPage::searchWhileTyping(const QString& text)
{
    QTextCursor start = textCursor();
    start.setPosition(start.selectionStart());
    setTextCursor(start);
    return search(text, {});
}

void HelpPage::zoomBy(int points)
{
    QFont zoomed = font();
    zoomed.setPointSizeF(std::clamp(zoomed.pointSizeF() + points, 6.0, 40.0));
    setFont(zoomed);
}

void HelpPage::zoomToNormal()
{
    QFont normal = font();
    normal.setPointSizeF(m_normalSize);
    setFont(normal);
}

void HelpPage::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyPalette();
}

// A visible match stays so when a message below needs room or lines break in other places.
void HelpPage::resizeEvent(QResizeEvent* event)
{
    const bool showsMatch =
        textCursor().hasSelection() && QRect(QPoint(), event->oldSize()).intersects(cursorRect());
    QTextBrowser::resizeEvent(event);
    if (showsMatch)
        ensureCursorVisible();
}

QMimeData* HelpPage::createMimeDataFromSelection() const
{
    const QTextDocumentFragment selected = textCursor().selection();
    auto* copied = new QMimeData;
    copied->setText(HelpCards::withoutPictures(selected.toPlainText()));
    copied->setHtml(HelpCards::withoutPictures(selected.toHtml()));
    return copied;
}

// The text takes its colours when it is set. Loading the page would add to the history.
void HelpPage::applyPalette()
{
    QPalette colours = palette();
    const QColor selection = colours.color(QPalette::Active, QPalette::Highlight);
    if (colours.color(QPalette::Inactive, QPalette::Highlight) != selection) {
        // The match must stay visible while the search field has the focus.
        colours.setColor(QPalette::Inactive, QPalette::Highlight, selection);
        colours.setColor(QPalette::Inactive, QPalette::HighlightedText,
                         colours.color(QPalette::Active, QPalette::HighlightedText));
        setPalette(colours);
        return;
    }
    document()->setDefaultStyleSheet(helpStyleSheet(colours));
    if (source().isEmpty())
        return;
    const int scrolledTo = verticalScrollBar()->value();
    setHtml(m_html);
    verticalScrollBar()->setValue(scrolledTo);
    searchFromVisibleText();
}

} // namespace quillet
