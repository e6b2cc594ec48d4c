#pragma once

#include "practice_window/practice_preferences.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;

namespace quillet::practice_window
{

// Asks for the preferences.
class PreferencesDialog : public QDialog
{
    Q_OBJECT

public:
    PreferencesDialog(const PracticePreferences& preferences, QWidget* parent);

    [[nodiscard]] PracticePreferences preferences() const;

private:
    void layOut();
    [[nodiscard]] QWidget* chartRow();
    void chooseFile();

    PracticePreferences m_preferences;
    QComboBox* m_standard;
    QLineEdit* m_chartFile;
    QComboBox* m_pays;
    QSpinBox* m_passMark;
    QCheckBox* m_sound;
};

} // namespace quillet::practice_window
