#pragma once

#include "platform/page_opener.h"

#include <QDialog>

class QVBoxLayout;

namespace quillet
{

// The last window: offers the web site's home page and ends the program when it closes, in
// whatever way. It is shown with exec(); what ending means is the business of its owner, who
// connects the two signals.
class frmExitNoBanner : public QDialog
{
    Q_OBJECT

public:
    // The opener must outlive the window.
    explicit frmExitNoBanner(PageOpener& pages, QWidget* parent = nullptr);

    // The close box, the system menu and Esc come here; exec() returns after it.
    void reject() override;

signals:
    // Sent once, before this window goes.
    void unloadMainWindow();
    // Sent by the two buttons alone, after this window has gone: exec() would return, but the
    // program ends here.
    void endProgram();

private:
    void cmdOK_Click();
    void Command1_Click();
    void openHomePage();
    void endEverything();
    void wearItsOwnColours();
    void addLinkLabels(QVBoxLayout& layout);
    void addFooter(QVBoxLayout& layout);
    void addButtons(QVBoxLayout& layout);

    PageOpener& m_pages;
};

} // namespace quillet
