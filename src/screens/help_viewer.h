#pragma once

#include "platform/browser_opener.h"
#include "screens/help_page.h"

#include <QMainWindow>

class QLabel;
class QLineEdit;

namespace quillet
{

// The help window: modeless, at most one, deleted when it is closed. If the help file cannot be
// read, it shows why instead of the text.
class HelpViewer : public QMainWindow
{
    Q_OBJECT

public:
    // Opens the help at its contents, in the open window if there is one.
    static void present(QWidget* parent, const PageOpener& openPage, const QString& path);

    HelpViewer(PageOpener openPage, QWidget* parent);

    void openAtContents(const QString& path);

private:
    [[nodiscard]] QWidget* layOutPage();
    void addNavigation(QToolBar& bar);
    void addSearch(QToolBar& bar);
    void addZoom(QToolBar& bar);
    void searchNext(QTextDocument::FindFlags direction);
    void searchTyped(const QString& text);
    void showMessage(const QString& message);

    PageOpener m_openPage;
    HelpPage* m_page;
    QLineEdit* m_searchText;
    QLabel* m_message;
};

} // namespace quillet
