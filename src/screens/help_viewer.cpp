#include "screens/help_viewer.h"

#include "platform/accessible_widgets.h"
#include "screens/help_file.h"
#include "screens/run_shell_execute.h"
#include "screens/single_window.h"

#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillet
{

namespace
{

template <typename Act>
QAction* addCommand(QToolBar& bar, const QString& text, const QList<QKeySequence>& keys, Act&& act)
{
    QAction* action = bar.addAction(text, std::forward<Act>(act));
    action->setShortcuts(keys);
    action->setToolTip(text + " (" + keys.first().toString(QKeySequence::NativeText) + ")");
    // By default, Tab skips the buttons of a tool bar.
    bar.widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    return action;
}

void prepare(QToolBar& bar)
{
    bar.setMovable(false);
    // The menu of the commands that do not fit in a narrow window.
    if (auto* more = bar.findChild<QToolButton*>("qt_toolbar_ext_button"))
        more->setAccessibleName("More commands");
}

// Styles draw a field's edge in a shade of the window colour, which is invisible on black.
class SearchField : public QLineEdit
{
protected:
    void paintEvent(QPaintEvent* event) override
    {
        QLineEdit::paintEvent(event);
        QPainter painter(this);
        painter.setPen(
            palette().color(hasFocus() ? QPalette::Highlight : QPalette::PlaceholderText));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
};

// Right of the game, as far as the screen allows.
QPoint placeBeside(const QWidget& game, QSize size)
{
    const QRect screen = game.screen()->availableGeometry();
    const QRect free(screen.topLeft(),
                     screen.size() - size - game.frameGeometry().size() + game.size());
    const QPoint corner = game.frameGeometry().topRight();
    return {std::max(free.left(), std::min(free.right(), corner.x())),
            std::max(free.top(), std::min(free.bottom(), corner.y()))};
}

QString notFound(const QString& text)
{
    return "\"" + text + "\" does not occur in the help.";
}

} // namespace

void HelpViewer::present(QWidget* parent, const PageOpener& openPage, const QString& path)
{
    auto* viewer = openWindow<HelpViewer>();
    if (viewer == nullptr) {
        viewer = new HelpViewer(openPage, parent);
        viewer->setAttribute(Qt::WA_DeleteOnClose);
        viewer->move(placeBeside(*parent, viewer->size()));
    }
    bringToFront(*viewer);
    viewer->openAtContents(path);
}

HelpViewer::HelpViewer(PageOpener openPage, QWidget* parent)
    : QMainWindow(parent, Qt::Window), m_openPage(std::move(openPage)), m_page(new HelpPage),
      m_searchText(new SearchField), m_message(new QLabel)
{
    setObjectName("HelpViewer");
    setWindowTitle("Quillet Help");
    setContextMenuPolicy(Qt::PreventContextMenu);

    setCentralWidget(layOutPage());
    auto* commands = new QToolBar("Commands");
    addNavigation(*commands);
    addZoom(*commands);
    auto* searching = new QToolBar("Search");
    addSearch(*searching);
    for (QToolBar* bar : {commands, searching})
        prepare(*bar);
    addToolBar(Qt::TopToolBarArea, commands);
    addToolBar(Qt::BottomToolBarArea, searching);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);

    resize(QSize(820, 680).boundedTo(screen()->availableSize() - QSize(40, 80)));
    m_page->setFocus();
}

QWidget* HelpViewer::layOutPage()
{
    m_page->setObjectName("helpPage");
    m_page->setAccessibleName("Help text");
    m_page->setFrameShape(QFrame::NoFrame);
    connect(m_page, &HelpPage::webLinkClicked, this, [this](const QUrl& address) {
        openWebPage(m_openPage, address.toEncoded().toStdString());
    });
    // Messages of the search get their own line, which wraps. In the tool bar they would be cut
    // off.
    m_message->setObjectName("helpMessage");
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->setContentsMargins(8, 4, 8, 4);
    m_message->hide();
    presentAs(*m_message, QAccessible::Notification);
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_page, 1);
    column->addWidget(m_message);
    return page;
}

void HelpViewer::addNavigation(QToolBar& bar)
{
    QAction* back = addCommand(bar, "Back", {QKeySequence(Qt::ALT | Qt::Key_Left)},
                               [this] { m_page->backward(); });
    QAction* forward = addCommand(bar, "Forward", {QKeySequence(Qt::ALT | Qt::Key_Right)},
                                  [this] { m_page->forward(); });
    for (QAction* action : {back, forward})
        action->setEnabled(false);
    connect(m_page, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_page, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    addCommand(bar, "Contents", {QKeySequence(Qt::ALT | Qt::Key_Home)},
               [this] { m_page->showContents(); });
    bar.addSeparator();
}

void HelpViewer::addZoom(QToolBar& bar)
{
    addCommand(bar, "Smaller", {QKeySequence(Qt::CTRL | Qt::Key_Minus)},
               [this] { m_page->zoomBy(-1); });
    addCommand(bar, "Larger",
               {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)},
               [this] { m_page->zoomBy(1); });
    addCommand(bar, "Normal size", {QKeySequence(Qt::CTRL | Qt::Key_0)},
               [this] { m_page->zoomToNormal(); });
}

void HelpViewer::addSearch(QToolBar& bar)
{
    m_searchText->setObjectName("helpSearch");
    m_searchText->setAccessibleName("Find in the help text");
    m_searchText->setClearButtonEnabled(true);
    if (auto* clear = m_searchText->findChild<QToolButton*>())
        clear->setAccessibleName("Clear the search");
    m_searchText->setMaximumWidth(220);
    auto* caption = new QLabel("Find (Ctrl+F)");
    caption->setContentsMargins(8, 0, 8, 0);
    bar.addWidget(caption);
    bar.addWidget(m_searchText);
    addCommand(bar, "Previous", {QKeySequence(Qt::SHIFT | Qt::Key_F3)},
               [this] { searchNext(QTextDocument::FindBackward); });
    addCommand(bar, "Next", {QKeySequence(Qt::Key_F3)}, [this] { searchNext({}); });

    connect(m_searchText, &QLineEdit::textEdited, this, &HelpViewer::searchTyped);
    connect(m_searchText, &QLineEdit::returnPressed, this, [this] { searchNext({}); });
    connect(new QShortcut(Qt::SHIFT | Qt::Key_Return, m_searchText, nullptr, nullptr,
                          Qt::WidgetShortcut),
            &QShortcut::activated, this, [this] { searchNext(QTextDocument::FindBackward); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        m_searchText->setFocus();
        m_searchText->selectAll();
    });
}

void HelpViewer::openAtContents(const QString& path)
{
    m_page->showText(readHelpFile(path));
    showMessage({});
}

void HelpViewer::searchNext(QTextDocument::FindFlags direction)
{
    const QString text = m_searchText->text();
    if (text.isEmpty()) {
        m_searchText->setFocus();
        return;
    }
    switch (m_page->search(text, direction)) {
    case HelpPage::Found::next:
        showMessage({});
        break;
    case HelpPage::Found::afterWrapping:
        showMessage(direction.testFlag(QTextDocument::FindBackward)
                        ? "Reached the top; continued from the end."
                        : "Reached the end; continued from the top.");
        break;
    case HelpPage::Found::nowhere:
        showMessage(notFound(text));
    }
}

void HelpViewer::searchTyped(const QString& text)
{
    const bool missing =
        !text.isEmpty() && m_page->searchWhileTyping(text) == HelpPage::Found::nowhere;
    showMessage(missing ? notFound(text) : QString());
}

void HelpViewer::showMessage(const QString& message)
{
    m_message->hide();
    m_message->setText(message);
    m_message->setAccessibleName(message);
    m_message->setVisible(!message.isEmpty());
}

} // namespace quillet
