#pragma once

#include "platform/page_opener.h"

#include <QDialog>

namespace quillet
{

class LinkLabel;

// The About box: modeless, at most one, deleted when it is closed.
class frmAbout : public QDialog
{
    Q_OBJECT

public:
    // Shows the box, or brings the open one to the front. The opener must outlive the box.
    static void present(QWidget* parent, PageOpener& pages);

    frmAbout(PageOpener& pages, QWidget* parent);

private:
    void lblLink_Click();
    void cmdOK_Click();
    QLayout* layOutHeading();
    QLayout* layOutAuthors();

    PageOpener& m_pages;
    LinkLabel* m_lblLink = nullptr;
};

} // namespace quillet
