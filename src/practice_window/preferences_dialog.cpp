#include "practice_window/preferences_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace quillet::practice_window
{

PreferencesDialog::PreferencesDialog(const PracticePreferences& preferences, QWidget* parent)
    : QDialog(parent), m_preferences(preferences), m_standard(new QComboBox),
      m_chartFile(new QLineEdit(QString::fromStdString(preferences.chartFile))),
      m_pays(new QComboBox), m_passMark(new QSpinBox), m_sound(new QCheckBox("&Sound"))
{
    setObjectName("preferences");
    setWindowTitle("Preferences");
    m_standard->setObjectName("standard");
    m_standard->addItems({"Perfect play", "The trainer's chart", "A chart from a file"});
    m_standard->setCurrentIndex(static_cast<int>(preferences.standard));
    m_chartFile->setObjectName("chartFile");
    m_pays->setObjectName("pays");
    for (const std::string_view each : odds::commonPays)
        m_pays->addItem(QString::fromUtf8(each.data(), static_cast<qsizetype>(each.size())));
    m_pays->setCurrentText(QString::fromStdString(preferences.pays));
    m_passMark->setObjectName("passMark");
    m_passMark->setRange(1, 100);
    m_passMark->setValue(preferences.passMark);
    m_passMark->setSuffix(" of 100");
    m_sound->setObjectName("sound");
    m_sound->setChecked(preferences.sound);
    layOut();
}

void PreferencesDialog::layOut()
{
    auto* form = new QFormLayout(this);
    form->addRow("Answers are &judged by:", m_standard);
    form->addRow("&Chart file:", chartRow());
    form->addRow("Pay &table (full house, flush):", m_pays);
    form->addRow("An exam is &passed with:", m_passMark);
    form->addRow(QString(), m_sound);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QWidget* PreferencesDialog::chartRow()
{
    auto* row = new QWidget;
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    auto* choose = new QPushButton("C&hoose...");
    line->addWidget(m_chartFile, 1);
    line->addWidget(choose);
    m_chartFile->setMinimumWidth(240);
    m_chartFile->setAccessibleName("Chart file");
    connect(choose, &QPushButton::clicked, this, &PreferencesDialog::chooseFile);
    const auto enable = [this, row] { row->setEnabled(m_standard->currentIndex() == 2); };
    connect(m_standard, &QComboBox::currentIndexChanged, row, enable);
    enable();
    return row;
}

void PreferencesDialog::chooseFile()
{
    const QString file = QFileDialog::getOpenFileName(this, "Choose a chart", m_chartFile->text(),
                                                      "Charts (*.chart);;All files (*)");
    if (!file.isEmpty())
        m_chartFile->setText(file);
}

PracticePreferences PreferencesDialog::preferences() const
{
    PracticePreferences preferences = m_preferences;
    preferences.standard = static_cast<practice::JudgedBy>(m_standard->currentIndex());
    preferences.chartFile = m_chartFile->text().toStdString();
    preferences.pays = m_pays->currentText().toStdString();
    preferences.passMark = m_passMark->value();
    preferences.sound = m_sound->isChecked();
    return preferences;
}

} // namespace quillet::practice_window
