#include "main_window/frm_preferences.h"

#include "cards/card_numbers.h"
#include "faults/run_time_error.h"
#include "main_window/back_preview.h"
#include "main_window/designed_look.h"
#include "main_window/window_layout.h"
#include "platform/desktop_colours.h"
#include "table/animation_speed.h"
#include "table/poker_table.h"
#include "table/table_canvas.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillet
{

namespace
{

// The first word is at the left end, the last word at the right end.
class EndsLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent*) override
    {
        constexpr int apart = Qt::AlignJustify | Qt::TextJustificationForced;
        QPainter(this).drawText(rect(), apart, text());
    }
};

QVBoxLayout& addPage(QTabWidget& tabs, const QString& name, const QString& caption)
{
    auto* page = new QFrame(&tabs);
    page->setObjectName(name);
    tabs.addTab(page, caption);
    return *new QVBoxLayout(page);
}

template <typename Control, typename Content>
Control* add(QBoxLayout& layout, const QString& name, const Content& content)
{
    auto* control = new Control(content);
    control->setObjectName(name);
    layout.addWidget(control);
    return control;
}

// Makes the list as wide as the preview, if necessary with a slightly smaller font. If that is not
// enough, because the desktop's font is very large, the list becomes wider.
void fitTo(QComboBox& list, int width)
{
    QFont font = list.font();
    const double smallest = 0.8 * font.pointSizeF();
    while (list.sizeHint().width() > width && font.pointSizeF() > smallest) {
        font.setPointSizeF(font.pointSizeF() - 0.5);
        list.setFont(font);
    }
    list.setFixedWidth(std::max(width, list.sizeHint().width()));
}

} // namespace

frmPreferences::frmPreferences(Preferences& preferences, PokerTable& table, ErrorBox errorBox,
                               QWidget* parent)
    : QDialog(parent), m_preferences(preferences), m_table(table), m_errorBox(std::move(errorBox))
{
    setObjectName("frmPreferences");
    setWindowTitle("Preferences");
    auto* layout = new QVBoxLayout(this);
    SSTab1 = new QTabWidget(this);
    SSTab1->setObjectName("SSTab1");
    layout->addWidget(SSTab1);
    makeGeneralPage(addPage(*SSTab1, "frameGeneral", "General"));
    makeVideoPokerPage(addPage(*SSTab1, "frameVideoPoker", "Video Poker"));
    makeCardBacksPage(addPage(*SSTab1, "frameCardBacks", "Card Backs"));
    for (QAbstractButton* indicator : findChildren<QAbstractButton*>())
        indicator->setStyle(&m_indicatorStyle);
    HScroll1->setStyle(&m_indicatorStyle);
    makeButtons(*layout);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void frmPreferences::makeGeneralPage(QVBoxLayout& page)
{
    ckSounds = add<QCheckBox>(page, "ckSounds", "Enable sounds");
    ckAnimation = add<QCheckBox>(page, "ckAnimation", "Enable animation");
    auto* caption = add<QLabel>(page, "Label1", "Animation Delay");
    HScroll1 = add<QScrollBar>(page, "HScroll1", Qt::Horizontal);
    HScroll1->setRange(slowest, fastest);
    HScroll1->setSingleStep(1);
    HScroll1->setPageStep(50);
    HScroll1->setFocusPolicy(Qt::StrongFocus);
    // By default, the left arrow key moves a horizontal scroll bar to the right.
    HScroll1->setInvertedControls(false);
    HScroll1->setAccessibleName("Animation Delay");
    caption->setBuddy(HScroll1);
    add<EndsLabel>(page, "Label7", "Slower                      Faster");
    Label4 = add<QLabel>(page, "Label4", "100");
    Label4->setAlignment(Qt::AlignHCenter);
    page.addStretch();
    connect(HScroll1, &QScrollBar::valueChanged, this, &frmPreferences::HScroll1_Change);
}

void frmPreferences::makeVideoPokerPage(QVBoxLayout& page)
{
    ckprfAutoDeal = add<QCheckBox>(page, "ckprfAutoDeal", "Auto Deal");
    opAlwaysShow = add<QRadioButton>(page, "opAlwaysShow", "Always Show Best Play ");
    opShowOnError = add<QRadioButton>(page, "opShowOnError", "Show Best Play after Error");
    page.addStretch();
}

void frmPreferences::makeCardBacksPage(QVBoxLayout& page)
{
    auto* caption = add<QLabel>(page, "Label2", "Select Card Image");
    Combo1 = new QComboBox;
    Combo1->setObjectName("Combo1");
    for (const std::string_view name : backNames)
        Combo1->addItem(QString::fromLatin1(name.data(), qsizetype(name.size())));
    Combo1->setCurrentIndex(-1);
    caption->setBuddy(Combo1);
    page.addWidget(Combo1, 0, Qt::AlignLeft);
    picBacks = new BackPreview(page.parentWidget());
    page.addWidget(picBacks, 0, Qt::AlignLeft);

    auto* row = new QHBoxLayout;
    add<QLabel>(*row, "Label5", "Hold  Card Outline color");
    lblColor = add<QLabel>(*row, "lblColor", "");
    lblColor->setFixedSize(40, 20);
    lblColor->setAutoFillBackground(true);
    lblColor->setFrameStyle(QFrame::Box | QFrame::Plain);
    cmdChangeColor = add<QPushButton>(*row, "cmdChangeColor", "change");
    cmdChangeColor->setAccessibleName("Change the colour of the hold outline");
    row->addStretch();
    page.addLayout(row);
    connect(Combo1, &QComboBox::currentIndexChanged, this, &frmPreferences::Combo1_Click);
    connect(picBacks, &BackPreview::scaleChanged, this, &frmPreferences::Combo1_Click);
    connect(cmdChangeColor, &QPushButton::clicked, this, &frmPreferences::cmdChangeColor_Click);
}

void frmPreferences::makeButtons(QVBoxLayout& layout)
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    auto* cmdSave = add<QPushButton>(*row, "cmdSave", "Save");
    auto* cmdCancel = add<QPushButton>(*row, "cmdCancel", "Cancel");
    layout.addLayout(row);
    cmdSave->setDefault(true);
    connect(cmdSave, &QPushButton::clicked, this, &frmPreferences::cmdSave_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmPreferences::cmdCancel_Click);
}

bool frmPreferences::event(QEvent* event)
{
    // Once per opening: it becomes active again after the colour chooser, with changes pending.
    if (event->type() == QEvent::Show && !m_activated) {
        m_activated = true;
        Form_Activate();
        // The dialog gets its size for the card before it is visible. A hidden page does not
        // propagate its size.
        picBacks->parentWidget()->layout()->activate();
        SSTab1->updateGeometry();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }
    return QDialog::event(event);
}

void frmPreferences::Form_Activate()
{
    guarded(m_errorBox, "Form_Activate", [this] {
        constexpr int margin = static_cast<int>(30 / designTwips);
        picBacks->setFixedSize(m_table.library().cardSize() + QSize(margin, margin));
        fitTo(*Combo1, picBacks->width());
        Combo1->view()->setMinimumWidth(Combo1->view()->sizeHintForColumn(0));
        {
            // Showing the stored position changes no delay.
            const QSignalBlocker quiet(HScroll1);
            HScroll1->setValue(m_preferences.prfScrollVal);
        }
        Label4->setText(QString::number(m_preferences.prfAnimationDelay));
        ckprfAutoDeal->setChecked(m_preferences.prfPokerAutoDeal);
        showOutlineColour();
        QRadioButton& chosen = *(m_preferences.prfShowPokerPlay ? opAlwaysShow : opShowOnError);
        chosen.setChecked(true);
        // Tab must reach the chosen button; Qt ensures this only after the first focus.
        for (QRadioButton* option : {opAlwaysShow, opShowOnError})
            option->setFocusPolicy(option == &chosen ? Qt::StrongFocus : Qt::ClickFocus);
        ckAnimation->setChecked(m_preferences.prfAnimation);
        ckSounds->setChecked(m_preferences.prfSound);
        if (!isBack(m_preferences.prfPKBackFace))
            throw RunTimeError("Invalid property value");
        Combo1->setCurrentIndex(m_preferences.prfPKBackFace - firstBack);
    });
}

void frmPreferences::Combo1_Click()
{
    guarded(m_errorBox, "Combo1_Click", [this] {
        if (Combo1->currentIndex() < 0)
            return;
        m_table.library().cdtDraw(picBacks->freshPicture(m_table.library().cardSize()), 0, 0,
                                  firstBack + Combo1->currentIndex(), drawBack, whiteColour);
        picBacks->setAccessibleName(QString("Card back %1").arg(Combo1->currentText()));
        picBacks->update();
    });
}

void frmPreferences::cmdChangeColor_Click()
{
    QColorDialog chooser(colourOf(static_cast<std::uint32_t>(m_preferences.prfCardOutlineColor)),
                         this);
    chooser.setObjectName("CommonDialog1");
    chooser.setWindowTitle("Colour of the hold outline");
    if (chooser.exec() != QDialog::Accepted)
        return;
    m_preferences.prfCardOutlineColor = static_cast<std::int32_t>(bgrOf(chooser.selectedColor()));
    showOutlineColour();
    m_table.canvas().update();
}

void frmPreferences::showOutlineColour()
{
    const QColor colour = colourOf(static_cast<std::uint32_t>(m_preferences.prfCardOutlineColor));
    setColour(*lblColor, QPalette::Window, colour);
    lblColor->setAccessibleName(QString("Hold outline colour %1").arg(colour.name()));
}

void frmPreferences::HScroll1_Change()
{
    m_preferences.prfAnimationDelay = animationDelayFor(HScroll1->value());
    Label4->setText(QString::number(m_preferences.prfAnimationDelay));
}

void frmPreferences::cmdSave_Click()
{
    guarded(m_errorBox, "cmdSave_Click", [this] {
        m_preferences.prfPokerAutoDeal = ckprfAutoDeal->isChecked();
        m_preferences.prfShowPokerPlay = opAlwaysShow->isChecked();
        m_preferences.prfAnimation = ckAnimation->isChecked();
        m_preferences.prfSound = ckSounds->isChecked();
        const std::int32_t chosen = firstBack + Combo1->currentIndex();
        if (isBack(chosen) && chosen != m_preferences.prfPKBackFace) {
            m_preferences.prfPKBackFace = chosen;
            m_table.DrawDealDeck();
        }
        m_preferences.prfScrollVal = static_cast<std::int16_t>(HScroll1->value());
        accept();
    });
}

void frmPreferences::cmdCancel_Click()
{
    reject();
}

} // namespace quillet
