#include "practice_window/exam.h"

#include "engine/pay_table.h"
#include "odds/hand_text.h"
#include "practice_window/card_text.h"
#include "practice_window/fonts.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace quillet::practice_window
{

namespace
{

QTableWidgetItem* cell(const QString& text)
{
    auto* item = new QTableWidgetItem(withSuitSigns(text));
    item->setData(Qt::AccessibleTextRole, spokenCardCodes(text));
    item->setToolTip(withSuitSigns(text));
    return item;
}

} // namespace

void Exam::add(const practice::Verdict& verdict)
{
    ++m_answered;
    m_cost += verdict.judgement.cost.value();
    if (verdict.judgement.right)
        return;
    const auto text = [&verdict](odds::Hold hold) {
        return QString::fromStdString(odds::holdText(verdict.hand.places, hold));
    };
    m_mistakes.push_back({text(odds::holdAll), text(verdict.held),
                          text(verdict.judgement.bestAllowed),
                          QString::fromStdString(verdict.judgement.cost.decimals(2)),
                          QString::fromStdString(verdict.reason)});
}

QString Exam::result() const
{
    const int right = m_answered - static_cast<int>(m_mistakes.size());
    return QString("%1: %2 of %3 are right, %4 are needed.")
        .arg(right >= m_passMark ? "Passed" : "Not passed")
        .arg(right)
        .arg(m_answered)
        .arg(m_passMark);
}

QString Exam::cost() const
{
    return QString("Against perfect play these hands lose %1 credits of the %2 paid for them.")
        .arg(m_cost, 0, 'f', 2)
        .arg(wager * m_answered);
}

void Exam::showResult(QWidget* parent) const
{
    QDialog dialog(parent);
    dialog.setObjectName("examResult");
    dialog.setWindowTitle("Exam");
    auto* column = new QVBoxLayout(&dialog);
    auto* headline = new QLabel(result());
    headline->setObjectName("examHeadline");
    headline->setFont(headingFont(headline->font(), 1.3));
    column->addWidget(headline);
    column->addWidget(new QLabel(cost()));
    const QStringList captions{"Deal", "You held", "Right", "Cost", "Why"};
    auto* table =
        new QTableWidget(static_cast<int>(m_mistakes.size()), static_cast<int>(captions.size()));
    table->setAccessibleName("Mistakes");
    table->setHorizontalHeaderLabels(captions);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false);
    for (int row = 0; row < table->rowCount(); ++row) {
        const Mistake& mistake = m_mistakes[static_cast<std::size_t>(row)];
        int at = 0;
        for (const QString& text :
             {mistake.deal, mistake.held, mistake.best, mistake.cost, mistake.reason})
            table->setItem(row, at++, cell(text));
    }
    table->resizeColumnsToContents();
    table->horizontalHeader()->setStretchLastSection(true);
    table->setVisible(!m_mistakes.empty());
    column->addWidget(table, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    column->addWidget(buttons);
    if (!m_mistakes.empty())
        dialog.resize(680, 420);
    dialog.exec();
}

} // namespace quillet::practice_window
