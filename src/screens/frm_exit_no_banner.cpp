#include "screens/frm_exit_no_banner.h"

#include "screens/designed_labels.h"
#include "screens/link_label.h"
#include "screens/run_shell_execute.h"
#include "screens/web_pages.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace quillet
{

namespace
{

struct Offering {
    const char* label;
    const char* text;
};

constexpr auto offerings = std::to_array<Offering>({
    {"Label1", "Rules of Texas Hold'em, step by step"},
    {"Label2", "Starting hands, seat by seat"},
    {"Label4", "Pot odds without a calculator"},
    {"Label5", "Omaha and Stud for Hold'em players"},
    {"Label6", "Video poker pay tables compared"},
    {"Label7", "Strategy charts to print"},
    {"Label8", "Quiz: which cards would you hold?"},
    {"Label9", "Glossary of poker words"},
    {"Label10", "Home games: chips, blinds and manners"},
    {"Label11", "Books worth reading"},
    {"Label12", "Questions and answers from players"},
    {"lblLink", "More free programs to download"},
});

QPushButton* namedButton(const char* name, const QString& text)
{
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    button->setMinimumWidth(button->sizeHint().width() + 24);
    return button;
}

} // namespace

frmExitNoBanner::frmExitNoBanner(PageOpener openPage, QWidget* parent)
    : QDialog(parent), m_openPage(std::move(openPage))
{
    setObjectName("frmExitNoBanner");
    setWindowTitle("More Texas Hold'em Resources..");
    applyPalette();

    auto* lblTitle = namedLabel("lblTitle", "Visit the Home Page for more Poker Goodies..");
    lblTitle->setFont(boldComicSans(15));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 20, 32, 16);
    layout->setSpacing(4);
    layout->addWidget(lblTitle, 0, Qt::AlignHCenter);
    layout->addSpacing(10);
    addLinkLabels(*layout);
    layout->addSpacing(14);
    addButtons(*layout);
    layout->addSpacing(8);
    addFooter(*layout);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

// Light grey with black text on every desktop. All other shades are derived from the grey, so the
// buttons stay readable on a dark desktop.
void frmExitNoBanner::applyPalette()
{
    QPalette colours(QColor(0xC0, 0xC0, 0xC0));
    colours.setColor(QPalette::WindowText, Qt::black);
    colours.setColor(QPalette::ButtonText, Qt::black);
    setPalette(colours);
}

void frmExitNoBanner::addLinkLabels(QVBoxLayout& layout)
{
    for (const Offering& offering : offerings) {
        auto* label = namedLabel<LinkLabel>(offering.label, offering.text);
        connect(label, &LinkLabel::clicked, this, &frmExitNoBanner::openHomePage);
        connect(label, &LinkLabel::doubleClicked, this, &frmExitNoBanner::openHomePage);
        layout.addWidget(label, 0, Qt::AlignHCenter);
    }
}

void frmExitNoBanner::addButtons(QVBoxLayout& layout)
{
    auto* cmdOK = namedButton("cmdOK", "Go To Home Page");
    auto* command1 = namedButton("Command1", "Exit");
    connect(cmdOK, &QPushButton::clicked, this, &frmExitNoBanner::cmdOK_Click);
    connect(command1, &QPushButton::clicked, this, &frmExitNoBanner::finish);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(command1);
    buttons->addStretch();
    layout.addLayout(buttons);

    // Leaving with Enter must not open a browser.
    command1->setDefault(true);
    command1->setFocus();
}

void frmExitNoBanner::addFooter(QVBoxLayout& layout)
{
    auto* footer = namedLabel<LinkLabel>("Label3", "Thank you for playing Quillet.");
    QFont underlined = smallFonts();
    underlined.setUnderline(true);
    footer->setFont(underlined);
    connect(footer, &LinkLabel::clicked, this, &frmExitNoBanner::openHomePage);
    layout.addWidget(footer, 0, Qt::AlignHCenter);
}

void frmExitNoBanner::openHomePage()
{
    openWebPage(m_openPage, homePage());
}

void frmExitNoBanner::cmdOK_Click()
{
    openHomePage();
    finish();
}

void frmExitNoBanner::finish()
{
    emit unloadMainWindow();
    done(QDialog::Accepted);
    emit endProgram();
}

void frmExitNoBanner::reject()
{
    emit unloadMainWindow();
    QDialog::reject();
}

} // namespace quillet
