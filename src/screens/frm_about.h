#pragma once

#include "platform/browser_opener.h"

#include <QDialog>

namespace quillet
{

class LinkLabel;

// The About box: modeless, at most one, deleted when it is closed.
class frmAbout : public QDialog
{
    Q_OBJECT

public:
    // Shows the box, or brings the open one to the front.
    static void present(QWidget* parent, const PageOpener& openPage);

    frmAbout(PageOpener openPage, QWidget* parent);

private:
    void lblLink_Click();
    QLayout* layOutHeading();
    QLayout* layOutAuthors();

    PageOpener m_openPage;
    LinkLabel* m_lblLink = nullptr;
};

} // namespace quillet
