#pragma once

#include <memory>

#include <QImage>
#include <QPixmap>
#include <QWidget>

#include "ComputePreview.h"

namespace Ui {
class UIHazePreviewClass;
}

/// The picture before and after, the strength control, and the worker behind them. Interface thread only.
///
/// The dynamic property "isComplete" (bool) says whether the picture on the screen is the result for the strength chosen; the
/// parent's "completeChanged", if it has one, is called by name after each change. While Alt is held the panel shows the
/// transmission map.
///
/// A run is under way from its start until its `finished` has arrived here. A request meanwhile replaces the staged input and
/// arms one restart, so that however many come, one more run follows, with the last input; the result of the run in flight is
/// dropped.
class UIHazePreview : public QWidget
{
    Q_OBJECT

public:
    UIHazePreview(NimbraOne2One *process, QWidget *parent);
    /// Waits for the worker.
    ~UIHazePreview() override;

    /// Takes a new preview image, Rgba with 32-bit samples. A run that was staged with the old one and has not begun will not
    /// begin; the caller sets `settings` to the new image's record and asks for a result.
    void setImage(std::unique_ptr<VImage> image);
    /// Waits for the worker and lets go of the record and its map: their owner may destroy them afterwards. Until the next image
    /// the controls do nothing.
    void releaseRecord();
    /// A picture at the size of the frame, as far as its shape allows; null for no picture.
    QPixmap fitFrame(const QImage &image) const;

    const std::unique_ptr<Ui::UIHazePreviewClass> ui;
    ComputePreview thread;
    std::unique_ptr<VImage> previewImage; ///< The current image, Rgba with 32-bit samples; empty before the first.
    HazeState *settings = nullptr;        ///< Record of the current image, or null. Not owned.
    QImage beforeImage;
    QImage afterImage; ///< Result, or the map while Alt is held.
    QPixmap beforePixmap;
    QPixmap afterPixmap;
    QString stateText; ///< Shown by nothing.

public Q_SLOTS:
    /// The form has no such button.
    void on_pushButtonComputePreview_clicked();
    void on_spinBoxPourcent_valueChanged(int value);
    void on_checkBoxSplit_stateChanged(int state);
    /// Asks for a result for the current strength. Nothing without a record.
    void computePreview();
    /// Shows a finished result. During a run the picture before stands for what the worker holds.
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

    bool underWay = false;     ///< From the start of the thread until its `finished` has arrived.
    bool restartArmed = false; ///< A request came during the run.
};
