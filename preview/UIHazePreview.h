#pragma once

#include <memory>

#include <QImage>
#include <QPixmap>
#include <QWidget>

#include "ComputePreview.h"

namespace Ui {
class UIHazePreviewClass;
}

/// Shows the picture before and after, with the strength control, and owns the worker. Interface thread only.
///
/// The dynamic property "isComplete" (bool) says whether the picture on the screen is the result for the chosen strength; the
/// parent's "completeChanged", if it has one, is called by name after each change. While Alt is held the panel shows the
/// transmission map.
///
/// A run is under way from its start until its `finished` has arrived here. A request during that time replaces the staged input
/// and arms one restart: however many requests come, only one more run follows, with the last input. The result of the run in
/// progress is dropped.
class UIHazePreview : public QWidget
{
    Q_OBJECT

public:
    UIHazePreview(NimbraOne2One *process, QWidget *parent);
    /// Waits for the worker.
    ~UIHazePreview() override;

    /// Takes a new preview image, Rgba with 32-bit samples. A run that was staged with the old image but has not begun does
    /// nothing; the caller then sets `settings` to the new image's record and requests a result.
    void setImage(std::unique_ptr<VImage> image);
    /// Waits for the worker and drops the record and its map, which their owner may destroy afterwards. Until the next image the
    /// controls do nothing.
    void releaseRecord();
    /// The picture scaled to fit the frame, keeping its shape; null if there is no picture.
    QPixmap fitFrame(const QImage &image) const;

    /// The leftmost three columns of the form are empty. Fixed: hosts rely on it.
    const std::unique_ptr<Ui::UIHazePreviewClass> ui;
    ComputePreview thread;
    std::unique_ptr<VImage> previewImage; ///< The current image, Rgba with 32-bit samples; empty before the first.
    HazeState *settings = nullptr;        ///< Record of the current image, or null. Not owned.
    QImage beforeImage;
    QImage afterImage; ///< The result, or the map while Alt is held.
    QPixmap beforePixmap;
    QPixmap afterPixmap;
    QString stateText; ///< Never shown. Fixed: hosts rely on it.

public Q_SLOTS:
    /// The form has no such button. Fixed: hosts rely on it.
    void on_pushButtonComputePreview_clicked();
    void on_spinBoxPourcent_valueChanged(int value);
    void on_checkBoxSplit_stateChanged(int state);
    /// Requests a result for the current strength. Does nothing without a record.
    void computePreview();
    /// Shows the finished result. During a run, when the worker's image must not be read, the picture stays as it is.
    void updatePreview();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void workerFinished();
    void setComplete(bool complete);
    QRect pictureRect(const QPixmap &pixmap) const;

    bool underWay = false;     ///< From the start of the thread until `finished` has arrived.
    bool restartArmed = false; ///< A request came during the run.
};
