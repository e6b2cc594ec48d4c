#pragma once

#include "platform/browser_opener.h"

#include <QDialog>

class QVBoxLayout;

namespace quillet
{

// The last window. It offers the home page, and the program ends when it is closed, however that
// happens. Its owner shows it with exec() and decides in the two signals how to end.
class frmExitNoBanner : public QDialog
{
    Q_OBJECT

public:
    explicit frmExitNoBanner(PageOpener openPage, QWidget* parent = nullptr);

    // The close box, the system menu and Esc come here; exec() returns after it.
    void reject() override;

signals:
    // Sent once, before this window closes.
    void unloadMainWindow();
    // Sent only by the two buttons, after this window has closed and before exec() returns.
    void endProgram();

private:
    void cmdOK_Click();
    void openHomePage();
    void finish();
    void applyPalette();
    void addLinkLabels(QVBoxLayout& layout);
    void addFooter(QVBoxLayout& layout);
    void addButtons(QVBoxLayout& layout);

    PageOpener m_openPage;
};

} // namespace quillet
