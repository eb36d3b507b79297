// The painted chart: bars, lines and crosshair of one stock, moved with pointer, wheel and keys.
//
// All that stays when the pointer moves is kept in a picture; a move of the crosshair copies it and draws the
// cross and the legend above it.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <optional>

#include "terminal/chart/legend.h"
#include "terminal/chart/scene.h"

namespace jogeon::terminal::chart {

class ChartView : public QWidget {
    Q_OBJECT

public:
    explicit ChartView(QWidget* parent = nullptr);

    // Shows the stock without marks: its newest bars, or, of the stock that is shown already, those up to the
    // day that was the last in view.
    void Show(Content content);

    // The same bars with other lines; what is in view stays.
    void SetStudy(Study study);
    void SetMarks(Marks marks);

    // A calm line in place of a chart.
    void ShowMessage(const QString& message);

    const Content& Shown() const { return content_; }
    const Marks& ShownMarks() const { return marks_; }
    const BarWindow& Window() const { return window_; }

    // Where everything stands now. There are bars.
    const Scene& CurrentScene() const;

    // Colours or font are others now.
    void Restyle();

    QSize sizeHint() const override { return {760, 480}; }
    QSize minimumSizeHint() const override { return {320, 220}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum class Drag { None, Pan, Zoom };

    bool HasBars() const { return !content_.bars.empty(); }
    void Arrange();
    int LastDay() const;
    void MovedByTrader();
    void Moved();  // another part of the bars is in view
    void RefreshCursor(QPoint at);
    void PaintLayer();
    void PaintChart(QPainter& painter);
    void PaintMessage(QPainter& painter) const;
    bool MoveByKey(int key);

    Content content_;
    Marks marks_;
    QString message_;
    BarWindow window_;
    int lastDay_ = 0;  // where the trader was before other timeframes; 0 once he has moved on
    Panes panes_;
    Legend legend_;

    mutable std::optional<Scene> scene_;  // none when it must be made anew
    QPixmap layer_;                       // in pixels of the device; null when it must be painted anew
    double layerRatio_ = 0;
    std::optional<QPoint> pointer_;
    Drag drag_ = Drag::None;
    int dragFrom_ = 0;
};

}  // namespace jogeon::terminal::chart
