#pragma once

#include "faults/guarded.h"
#include "main_window/indicator_style.h"
#include "settings/preferences.h"
#include "table/card_library.h"
#include "table/surface.h"

#include <QDialog>

#include <functional>

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QTabWidget;
class QVBoxLayout;

namespace quillet
{

class BackPreview;

// What the dialog changes on the main window.
struct PreferencesHost {
    Preferences& preferences;
    CardLibrary& library;
    ErrorBox errorBox;
    QSize cardSize; // cWidth, cHeight
    double twipsPerPixel;
    std::function<void()> DrawDealDeck;
    std::function<void()> outlineColourChanged;
};

// The modal dialog for the preference fields. The outline colour and the animation delay take
// effect at once, the rest at "Save". It does not write the settings file.
class frmPreferences : public QDialog
{
    Q_OBJECT

public:
    frmPreferences(PreferencesHost host, QWidget* parent);

    void cmdSave_Click();
    void cmdCancel_Click();
    void cmdChangeColor_Click();
    void HScroll1_Change();
    void Combo1_Click();

protected:
    bool event(QEvent* event) override;

private:
    void Form_Activate();
    void makeGeneralPage(QFrame& page);
    void makeVideoPokerPage(QFrame& page);
    void makeCardBacksPage(QFrame& page);
    void makeButtons(QVBoxLayout& layout);
    void showOutlineColour();

    PreferencesHost m_host;
    bool m_activated = false;
    IndicatorStyle m_indicatorStyle;

    // Children.
    QTabWidget* SSTab1 = nullptr;
    QCheckBox* ckSounds = nullptr;
    QCheckBox* ckAnimation = nullptr;
    QScrollBar* HScroll1 = nullptr;
    QLabel* Label4 = nullptr;
    QCheckBox* ckprfAutoDeal = nullptr;
    QRadioButton* opAlwaysShow = nullptr;
    QRadioButton* opShowOnError = nullptr;
    QComboBox* Combo1 = nullptr;
    BackPreview* picBacks = nullptr;
    QLabel* lblColor = nullptr;
    QPushButton* cmdChangeColor = nullptr;
};

} // namespace quillet
