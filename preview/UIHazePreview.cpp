#include "UIHazePreview.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

#include "HandOverLocker.h"
#include "ui_UIHazePreview.h"

namespace {

constexpr int kWaitFrames = 12;
constexpr int kWaitPeriodMs = 100;

QStringList waitFrames()
{
    QStringList files;
    for (int frame = 1; frame <= kWaitFrames; ++frame)
        files += QStringLiteral(":/51D2A7E4-93C6-4F08-B1E5-6A0C7D3E9F21/Resources/iconwait_%1.png").arg(frame, 2, 10, QChar('0'));
    return files;
}

} // namespace

UIHazePreview::UIHazePreview(NimbraOne2One *process, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::UIHazePreviewClass>()), thread(process, this)
{
    {
        // The form has no button for the slot of this name, which Qt would report on the console.
        QPushButton buttonOfTheSlot(this);
        buttonOfTheSlot.setObjectName(QStringLiteral("pushButtonComputePreview"));
        ui->setupUi(this);
    }
    previewImage = std::make_unique<VImage>();
    layout()->removeWidget(ui->labelState); // it floats over the frame
    ui->labelState->startAnimation(waitFrames(), kWaitPeriodMs);
    setFocusPolicy(Qt::StrongFocus);
    connect(&thread, &QThread::finished, this, &UIHazePreview::workerFinished);
}

UIHazePreview::~UIHazePreview()
{
    thread.wait();
}

void UIHazePreview::setImage(std::unique_ptr<VImage> image)
{
    // Old pixels with the new record, or new pixels with the old one, would pair a map with an image of another size.
    const HandOverLocker locker(thread.mutex);
    thread.source = nullptr;
    previewImage = std::move(image);
}

void UIHazePreview::releaseRecord()
{
    {
        const HandOverLocker locker(thread.mutex);
        thread.source = nullptr;
    }
    thread.wait();
    thread.target = nullptr;
    thread.workSettings.transmission = nullptr;
    settings = nullptr;
    restartArmed = false;
}

QPixmap UIHazePreview::fitFrame(const QImage &image) const
{
    if (image.isNull())
        return QPixmap();
    return QPixmap::fromImage(image.scaled(ui->frame->size(), Qt::KeepAspectRatio, Qt::FastTransformation));
}

void UIHazePreview::setComplete(bool complete)
{
    setProperty("isComplete", complete);
    // By name, because the parent may be any widget; without the method there is nobody to notify.
    if (parent() && parent()->metaObject()->indexOfMethod("completeChanged()") != -1)
        QMetaObject::invokeMethod(parent(), "completeChanged");
}

void UIHazePreview::on_pushButtonComputePreview_clicked()
{
    computePreview();
}

void UIHazePreview::on_spinBoxPourcent_valueChanged(int value)
{
    if (!settings) // during set-up of the form, or before the first image
        return;
    settings->strength = value;
    computePreview();
}

void UIHazePreview::on_checkBoxSplit_stateChanged(int)
{
    update();
}

void UIHazePreview::computePreview()
{
    if (!settings)
        return;
    setComplete(false);
    ui->labelState->setVisible(true);
    afterImage = QImage();
    afterPixmap = QPixmap();
    {
        const HandOverLocker locker(thread.mutex);
        thread.source = previewImage.get();
        thread.pendingSettings = *settings;
        thread.target = settings;
    }
    restartArmed = underWay;
    if (!underWay) {
        underWay = true;
        thread.start(QThread::InheritPriority);
        stateText = tr("Preview is uptodate");
    }
    update();
}

void UIHazePreview::workerFinished()
{
    underWay = false;
    if (restartArmed)
        computePreview();
    else
        updatePreview();
}

void UIHazePreview::updatePreview()
{
    setComplete(true);
    if (!underWay && thread.work.Bitmap()) {
        const HandOverLocker locker(thread.mutex);
        thread.work.ToQImage(afterImage);
    }
    afterPixmap = fitFrame(afterImage);
    ui->labelState->setVisible(underWay);
    update();
}

// Neither handler passes a key on, and letting Alt go completes the page even during a run. Fixed: hosts rely on it.

void UIHazePreview::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Alt || event->isAutoRepeat() || underWay || !thread.work.Bitmap())
        return;
    {
        const HandOverLocker locker(thread.mutex);
        if (float *const map = thread.workSettings.transmission) {
            const int width = thread.work.Width();
            const VImage view(width, thread.work.Height(), VImage::Grey, 32, /*clear=*/false, map, width * int(sizeof(float)));
            view.ToQImage(afterImage);
        } else {
            thread.work.ToQImage(afterImage);
        }
    }
    afterPixmap = fitFrame(afterImage);
    ui->labelState->setVisible(false);
    update();
}

void UIHazePreview::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Alt)
        updatePreview();
}

QRect UIHazePreview::pictureRect(const QPixmap &pixmap) const
{
    const QSize room = ui->frame->size() - pixmap.size();
    return pixmap.rect().translated(ui->frame->pos()).translated(room.width() / 2, room.height() / 2);
}

void UIHazePreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (!beforePixmap.isNull())
        painter.drawPixmap(pictureRect(beforePixmap), beforePixmap, QRect());
    if (afterPixmap.isNull())
        return;
    const QRect picture = pictureRect(afterPixmap);
    if (ui->checkBoxSplit->isChecked())
        painter.setClipRect(picture.adjusted(picture.width() / 2, 0, 0, 0), Qt::ReplaceClip);
    painter.drawPixmap(picture, afterPixmap, QRect());
}

void UIHazePreview::resizeEvent(QResizeEvent *)
{
    beforePixmap = fitFrame(beforeImage);
    afterPixmap = fitFrame(afterImage);
    const QSize room = ui->frame->size() - ui->labelState->size();
    ui->labelState->move(ui->frame->pos() + QPoint(room.width() / 2, room.height() / 2));
}
