#include "screens/frm_about.h"

#include "screens/designed_labels.h"
#include "screens/link_label.h"
#include "screens/run_shell_execute.h"
#include "screens/single_window.h"
#include "screens/web_pages.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace quillet
{

namespace
{

constexpr QSize iconSize(64, 64);

QIcon programIcon()
{
    QIcon icon(":/icons/quillet-64.png");
    icon.addFile(":/icons/quillet-128.png");
    return icon;
}

} // namespace

void frmAbout::present(QWidget* parent, const PageOpener& openPage)
{
    auto* box = openWindow<frmAbout>();
    if (box == nullptr) {
        box = new frmAbout(openPage, parent);
        box->setAttribute(Qt::WA_DeleteOnClose);
    }
    bringToFront(*box);
}

frmAbout::frmAbout(PageOpener openPage, QWidget* parent)
    : QDialog(parent), m_openPage(std::move(openPage))
{
    setObjectName("frmAbout");
    setWindowTitle("About Quillet");

    auto* cmdOK = new QPushButton("OK");
    cmdOK->setObjectName("cmdOK");
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QWidget::close);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 16);
    layout->setSpacing(16);
    layout->addLayout(layOutHeading());
    layout->addLayout(layOutAuthors());
    layout->addWidget(cmdOK, 0, Qt::AlignRight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    cmdOK->setFocus();
}

QLayout* frmAbout::layOutHeading()
{
    auto* picIcon = namedLabel("picIcon", {});
    picIcon->setAccessibleName("Quillet's icon");
    picIcon->setPixmap(programIcon().pixmap(iconSize, devicePixelRatioF()));
    picIcon->setFixedSize(iconSize);

    auto* lblTitle = namedLabel("lblTitle", "Quillet");
    QFont large = lblTitle->font();
    large.setPointSizeF(2 * large.pointSizeF());
    large.setBold(true);
    lblTitle->setFont(large);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(lblTitle);
    texts->addWidget(namedLabel("lblVersion", "Version " QUILLET_SHORT_VERSION));
    texts->addWidget(namedLabel("lblshareware", "Free Software"));

    auto* heading = new QHBoxLayout;
    heading->setSpacing(20);
    heading->addWidget(picIcon, 0, Qt::AlignTop);
    heading->addLayout(texts, 1);
    return heading;
}

QLayout* frmAbout::layOutAuthors()
{
    m_lblLink = namedLabel<LinkLabel>("lblLink", QString::fromStdString(programPage()));
    connect(m_lblLink, &LinkLabel::clicked, this, &frmAbout::lblLink_Click);
    auto* footer =
        namedLabel("Label3", "Play money only: the credits on the table are worth nothing.");
    footer->setFont(smallFonts());

    auto* authors = new QVBoxLayout;
    authors->setSpacing(2);
    authors->addWidget(namedLabel("Label5", "Programming by"));
    authors->addWidget(namedLabel("lblDisclaimer", "The Quillet developers"));
    authors->addWidget(namedLabel("Label4", "developers@quillet.example"));
    authors->addSpacing(12);
    authors->addWidget(m_lblLink, 0, Qt::AlignLeft);
    authors->addSpacing(12);
    authors->addWidget(footer);
    return authors;
}

void frmAbout::lblLink_Click()
{
    openWebPage(m_openPage, m_lblLink->text().toStdString());
}

} // namespace quillet
