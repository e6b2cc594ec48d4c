#pragma once

#include "platform/shell_open.h"

#include <QDialog>

class QLabel;

namespace quillet
{

class LinkLabel;

// The About box: modeless, at most one, deleted when it is closed.
class frmAbout : public QDialog
{
    Q_OBJECT

public:
    // Shows the box, or brings the open one to the front. The shell must outlive the box.
    static void present(QWidget* parent, ShellOpen& shell);

    frmAbout(ShellOpen& shell, QWidget* parent);

private:
    void lblLink_Click();
    void cmdOK_Click();
    QLayout* layOutHeading();
    QLayout* layOutAuthors();

    ShellOpen& m_shell;
    LinkLabel* m_lblLink = nullptr;
};

} // namespace quillet
