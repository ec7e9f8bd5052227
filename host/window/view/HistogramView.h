#pragma once

#include <optional>

#include <QWidget>

#include "Histogram.h"

/// The result's histogram with the source's as a dashed line, and the shares of black and white pixels under it.
class HistogramView : public QWidget
{
    Q_OBJECT

public:
    explicit HistogramView(QWidget *parent = nullptr);

    /// The last histogram stays until the next one is there.
    void setHistogram(const Histogram &histogram);
    void clear();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int across) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString percent(double share) const;
    QStringList legend(double black, double white) const;
    bool isInOneLine(int across) const;

    std::optional<Histogram> shown;
};
