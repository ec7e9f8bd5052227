#include "PhotoPage.h"

#include <algorithm>

#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>
#include <QVBoxLayout>

#include "BatchPlan.h"

namespace {

enum Role { Path = Qt::UserRole, Stage };
enum { Waiting, Checked, Pictured }; ///< How far a photograph has been read; its Stage.
constexpr QSize kPicture(160, 120);
constexpr int kComplaintsShown = 3;

/// The picture in the middle of a transparent field, so that all entries have the same size.
QIcon centred(const QImage &picture, qreal ratio)
{
    QImage field(kPicture * ratio, QImage::Format_ARGB32_Premultiplied);
    field.fill(Qt::transparent);
    QPainter painter(&field);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSize size = picture.size().scaled(field.size(), Qt::KeepAspectRatio);
    painter.drawImage(QRect(QPoint((field.width() - size.width()) / 2, (field.height() - size.height()) / 2), size), picture);
    painter.end();
    field.setDevicePixelRatio(ratio);
    return QIcon(QPixmap::fromImage(field));
}

QStringList patterns()
{
    QStringList all;
    for (const QString &suffix : PhotoLoader::readableSuffixes())
        all << "*." + suffix << "*." + suffix.toUpper();
    return all;
}

} // namespace

PhotoPage::PhotoPage(HostApplication &host, QWidget *parent)
    : QWizardPage(parent), application(host), list(new QListWidget(this)), state(new QLabel(this)), leftOut(new QLabel(this)),
      removeButton(new QPushButton(tr("&Remove"), this)), reader(host, int(kPicture.width() * devicePixelRatioF()))
{
    setTitle(tr("Photographs"));
    setSubTitle(tr("Choose the photographs to remove haze from, or drop them here. They are never changed: each result is saved "
                   "beside its photograph."));
    setAcceptDrops(true);

    list->setObjectName(QStringLiteral("photographs"));
    list->setAccessibleName(tr("Photographs"));
    list->setViewMode(QListView::IconMode);
    list->setIconSize(kPicture);
    list->setGridSize(kPicture + QSize(20, 36));
    list->setResizeMode(QListView::Adjust);
    list->setMovement(QListView::Static);
    list->setUniformItemSizes(true);
    list->setWordWrap(false);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setAcceptDrops(false); // the page takes them
    state->setObjectName(QStringLiteral("state"));
    leftOut->setObjectName(QStringLiteral("leftOut"));
    leftOut->setWordWrap(true);
    leftOut->setTextFormat(Qt::PlainText);
    leftOut->hide();

    auto *addButton = new QPushButton(tr("&Add photographs..."), this);
    addButton->setObjectName(QStringLiteral("add"));
    auto *settingsButton = new QPushButton(tr("&Open a session..."), this);
    settingsButton->setObjectName(QStringLiteral("openSession"));
    settingsButton->setToolTip(tr("A settings file with photographs and the strength of each"));
    removeButton->setObjectName(QStringLiteral("remove"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(addButton);
    buttons->addWidget(settingsButton);
    buttons->addWidget(removeButton);
    buttons->addStretch();
    buttons->addWidget(state);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(list, 1);
    rows->addWidget(leftOut);
    rows->addLayout(buttons);

    for (QPushButton *button : {addButton, settingsButton, removeButton})
        button->setAutoDefault(false); // Return belongs to the window's own buttons

    connect(addButton, &QPushButton::clicked, this, &PhotoPage::choose);
    connect(settingsButton, &QPushButton::clicked, this, &PhotoPage::chooseSettings);
    connect(removeButton, &QPushButton::clicked, this, &PhotoPage::removeSelected);
    connect(list, &QListWidget::itemSelectionChanged, this, &PhotoPage::showState);
    connect(&reader, &PhotoReader::checked, this, &PhotoPage::onChecked);
    connect(&reader, &PhotoReader::ready, this, &PhotoPage::onReady);
    connect(&reader, &PhotoReader::failed, this, &PhotoPage::onFailed);
    showState();
}

QStringList PhotoPage::filesOf(const QStringList &paths)
{
    QStringList files;
    for (const QString &given : paths) {
        const QFileInfo info(given);
        if (!info.isDir()) {
            files << QDir::cleanPath(info.absoluteFilePath());
            continue;
        }
        const QFileInfoList inside = QDir(info.absoluteFilePath()).entryInfoList(patterns(), QDir::Files, QDir::Name);
        if (inside.isEmpty())
            complaints << tr("%1: There are no photographs in this folder.").arg(given);
        for (const QFileInfo &file : inside)
            files << QDir::cleanPath(file.absoluteFilePath());
    }
    return files;
}

void PhotoPage::add(const QStringList &paths)
{
    const QStringList files = filesOf(paths), all = photographs() + files;
    const QSet<QString> results = BatchPlan::resultsAmong(all, all, application);
    if (!results.isEmpty()) {
        const auto first = std::find_if(all.begin(), all.end(), [&](const QString &path) { return results.contains(path); });
        complaints << tr("%n file(s) that are results of other photographs in the list, such as \"%1\".", nullptr, results.size())
                          .arg(QFileInfo(*first).fileName());
    }
    for (const QString &result : results)
        if (QListWidgetItem *listed = items.value(result))
            remove(listed);

    QImage waiting(kPicture, QImage::Format_ARGB32_Premultiplied);
    waiting.fill(QColor(128, 128, 128, 40));
    const QIcon icon = centred(waiting, devicePixelRatioF());
    for (const QString &path : files) {
        if (items.contains(path) || results.contains(path))
            continue;
        auto *item = new QListWidgetItem(icon, QFileInfo(path).fileName(), list);
        item->setData(Path, path);
        item->setData(Stage, Waiting);
        item->setToolTip(QDir::toNativeSeparators(path));
        items.insert(path, item);
        reader.read(path);
    }
    showState();
    Q_EMIT completeChanged();
}

QStringList PhotoPage::photographs() const
{
    QStringList paths;
    for (int row = 0; row < list->count(); ++row)
        paths << list->item(row)->data(Path).toString();
    return paths;
}

bool PhotoPage::isComplete() const
{
    return list->count() > 0 && countAtLeast(Checked) == list->count() &&
           countAtLeast(Pictured) >= (waitsForAll ? list->count() : 1);
}

int PhotoPage::countAtLeast(int stage) const
{
    int count = 0;
    for (int row = 0; row < list->count(); ++row)
        count += list->item(row)->data(Stage).toInt() >= stage;
    return count;
}

void PhotoPage::clear()
{
    complaints.clear();
    while (list->count() > 0)
        remove(list->item(0));
    showState();
    Q_EMIT completeChanged();
}

void PhotoPage::onChecked(const QString &path)
{
    QListWidgetItem *const item = items.value(path);
    if (item && item->data(Stage) == Waiting)
        item->setData(Stage, Checked);
    Q_EMIT completeChanged();
}

void PhotoPage::onReady(const QString &path, const QImage &picture)
{
    if (QListWidgetItem *item = items.value(path)) {
        item->setIcon(centred(picture, devicePixelRatioF()));
        item->setData(Stage, Pictured);
    }
    showState();
    Q_EMIT completeChanged();
}

void PhotoPage::onFailed(const QString &path, const QString &reason)
{
    if (QListWidgetItem *item = items.value(path)) {
        complaints << tr("%1: %2").arg(QFileInfo(path).fileName(), reason);
        remove(item);
    }
    showState();
    Q_EMIT completeChanged();
}

void PhotoPage::removeSelected()
{
    for (QListWidgetItem *item : list->selectedItems())
        remove(item);
    showState();
    Q_EMIT completeChanged();
}

void PhotoPage::remove(QListWidgetItem *item)
{
    const QString path = item->data(Path).toString();
    reader.forget(path);
    items.remove(path);
    delete item;
}

void PhotoPage::showState()
{
    removeButton->setEnabled(!list->selectedItems().isEmpty());
    const int unread = list->count() - countAtLeast(Pictured);
    state->setText(unread > 0 ? tr("Reading %n photograph(s)...", nullptr, unread)
                              : tr("%n photograph(s)", nullptr, list->count()));
    QStringList shown = complaints.mid(qMax(0, complaints.size() - kComplaintsShown));
    if (complaints.size() > shown.size())
        shown.prepend(tr("... and %n more", nullptr, complaints.size() - shown.size()));
    leftOut->setText(tr("Left out:") + '\n' + shown.join('\n'));
    leftOut->setToolTip(complaints.join('\n'));
    leftOut->setVisible(!complaints.isEmpty());
}

void PhotoPage::choose()
{
    const QString folder = list->count() > 0 ? QFileInfo(photographs().constLast()).absolutePath()
                                             : QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const QStringList chosen = QFileDialog::getOpenFileNames(
        this, tr("Add photographs"), folder, tr("Photographs (%1)").arg(patterns().join(' ')) + ";;" + tr("All files (*)"));
    if (chosen.isEmpty())
        return;
    complaints.clear();
    add(chosen);
}

void PhotoPage::chooseSettings()
{
    const QString file = QFileDialog::getOpenFileName(this, tr("Open a session"), QString(),
                                                      tr("Settings files (*.xml)") + ";;" + tr("All files (*)"));
    if (file.isEmpty())
        return;
    complaints.clear();
    Q_EMIT settingsWanted(file);
}

void PhotoPage::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void PhotoPage::dropEvent(QDropEvent *event)
{
    QStringList paths;
    for (const QUrl &url : event->mimeData()->urls())
        if (url.isLocalFile())
            paths << url.toLocalFile();
    event->acceptProposedAction();
    complaints.clear();
    add(paths);
}

void PhotoPage::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Delete)
        removeSelected();
    else
        QWizardPage::keyPressEvent(event);
}
