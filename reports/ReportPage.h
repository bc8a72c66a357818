#pragma once

#include <QPageSize>
#include <QWidget>

class Report;

/// A sheet of white paper with a report on it, at a zoom.
class ReportPage : public QWidget
{
    Q_OBJECT

public:
    explicit ReportPage(const Report &report, QWidget *parent = nullptr);

    [[nodiscard]] double Zoom() const { return mZoom; }
    void Zoom(double zoom);
    /// The zoom at which the sheet and the ground around it fill that width or height, in pixels.
    [[nodiscard]] double ZoomForWidth(int pixels) const;
    [[nodiscard]] double ZoomForHeight(int pixels) const;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QSizeF Sheet() const;

    const Report &mReport;
    QPageSize mPaper;
    double mZoom = 1;
};
