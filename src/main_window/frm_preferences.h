#pragma once

#include "faults/guarded.h"
#include "main_window/indicator_style.h"
#include "settings/preferences.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QTabWidget;
class QVBoxLayout;

namespace quillet
{

class BackPreview;
class PokerTable;

// The modal dialog for the preference fields. The outline colour and the animation delay take
// effect at once, the rest at "Save". It does not write the settings file.
class frmPreferences : public QDialog
{
    Q_OBJECT

public:
    frmPreferences(Preferences& preferences, PokerTable& table, ErrorBox errorBox, QWidget* parent);

    void cmdSave_Click();
    void cmdCancel_Click();
    void cmdChangeColor_Click();
    void HScroll1_Change();
    void Combo1_Click();

protected:
    bool event(QEvent* event) override;

private:
    void Form_Activate();
    void makeGeneralPage(QVBoxLayout& page);
    void makeVideoPokerPage(QVBoxLayout& page);
    void makeCardBacksPage(QVBoxLayout& page);
    void makeButtons(QVBoxLayout& layout);
    void showOutlineColour();

    Preferences& m_preferences;
    PokerTable& m_table;
    ErrorBox m_errorBox;
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
