#include "KeySheet.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QKeySequence>
#include <QLabel>
#include <QScrollArea>

namespace {

constexpr int kColumns = 2;
constexpr int kGap = 24; ///< Between columns.

QString withoutMnemonic(QString text)
{
    text.replace(QLatin1String("&&"), QLatin1String("\1"));
    text.remove(QLatin1Char('&'));
    return text.replace(QLatin1Char('\1'), QLatin1Char('&'));
}

} // namespace

std::vector<KeySheet::Row> KeySheet::rowsOf(const QList<QAction *> &actions)
{
    std::vector<Row> rows;
    for (const QAction *action : actions)
        if (const QString keys = QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText); !keys.isEmpty())
            rows.push_back({keys, action->statusTip().isEmpty() ? withoutMnemonic(action->text()) : action->statusTip()});
    return rows;
}

KeySheet::KeySheet(const std::vector<Row> &rows, QWidget *parent) : QDialog(parent)
{
    setWindowTitle(tr("Keys"));
    auto *sheet = new QWidget;
    auto *grid = new QGridLayout(sheet);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(3);
    const int perColumn = (int(rows.size()) + kColumns - 1) / kColumns;
    for (int i = 0; i < int(rows.size()); ++i) {
        const int column = i / perColumn * 3, row = i % perColumn;
        auto *keys = new QLabel(rows[std::size_t(i)].keys);
        QFont bold = keys->font();
        bold.setBold(true);
        keys->setFont(bold);
        auto *does = new QLabel(rows[std::size_t(i)].does);
        for (QLabel *label : {keys, does}) {
            label->setTextFormat(Qt::PlainText);
            label->setTextInteractionFlags(Qt::NoTextInteraction);
        }
        grid->addWidget(keys, row, column, Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(does, row, column + 1, Qt::AlignVCenter);
        if (column > 0)
            grid->setColumnMinimumWidth(column - 1, kGap);
    }
    grid->setRowStretch(perColumn, 1);

    auto *area = new QScrollArea;
    area->setWidget(sheet);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setMinimumWidth(sheet->sizeHint().width());
    QStringList lines;
    for (const Row &row : rows)
        lines << row.keys + QLatin1String(": ") + row.does;
    area->setAccessibleName(windowTitle());
    area->setAccessibleDescription(lines.join(QLatin1Char('\n')));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(area);
    layout->addWidget(buttons);
    // Room for all rows where the screen has it.
    const QSize wanted = sheet->sizeHint() + QSize(2, 2);
    resize(wanted.width() + 40, wanted.height() + buttons->sizeHint().height() + 40);
}
