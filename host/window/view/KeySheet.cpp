#include "KeySheet.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeySequence>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>

namespace {

constexpr int kGap = 24; ///< Between columns.

QString withoutMnemonic(QString text)
{
    text.replace(QLatin1String("&&"), QLatin1String("\1"));
    text.remove(QLatin1Char('&'));
    return text.replace(QLatin1Char('\1'), QLatin1Char('&'));
}

QWidget *sheetOf(const std::vector<KeySheet::Row> &rows, int columns)
{
    auto *sheet = new QWidget;
    auto *grid = new QGridLayout(sheet);
    grid->setHorizontalSpacing(kGap / 2);
    grid->setVerticalSpacing(3);
    const int perColumn = (int(rows.size()) + columns - 1) / columns;
    for (int i = 0; i < int(rows.size()); ++i) {
        const int column = i / perColumn * 3, line = i % perColumn;
        auto *keys = new QLabel(rows[std::size_t(i)].keys), *does = new QLabel(rows[std::size_t(i)].does);
        QFont bold = keys->font();
        bold.setBold(true);
        keys->setFont(bold);
        for (QLabel *label : {keys, does})
            label->setTextFormat(Qt::PlainText);
        grid->addWidget(keys, line, column, Qt::AlignRight);
        grid->addWidget(does, line, column + 1);
        grid->setColumnMinimumWidth(column + 2, column / 3 + 1 < columns ? kGap : 0);
        grid->setColumnStretch(column + 1, 1);
    }
    grid->setRowStretch(perColumn, 1);
    return sheet;
}

} // namespace

std::vector<KeySheet::Row> KeySheet::rowsOf(const QList<QAction *> &actions)
{
    std::vector<Row> rows;
    for (const QAction *action : actions)
        if (const QString keys = action->shortcut().toString(QKeySequence::NativeText); !keys.isEmpty())
            rows.push_back({keys, action->statusTip().isEmpty() ? withoutMnemonic(action->text()) : action->statusTip()});
    return rows;
}

KeySheet::KeySheet(const std::vector<Row> &rows, QWidget *parent) : QDialog(parent)
{
    setWindowTitle(tr("Keys"));
    const QSize screen = (parent ? parent->screen() : QGuiApplication::primaryScreen())->availableGeometry().size() * 0.9;
    QWidget *sheet = sheetOf(rows, 2);
    if (sheet->sizeHint().width() > screen.width()) {
        delete sheet;
        sheet = sheetOf(rows, 1);
    }
    auto *area = new QScrollArea;
    area->setWidget(sheet);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
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
    const QMargins margins = layout->contentsMargins();
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent), below = buttons->sizeHint().height() + layout->spacing();
    resize((sheet->sizeHint() + QSize(margins.left() + margins.right() + bar, margins.top() + margins.bottom() + below))
               .boundedTo(screen));
}
