// The caption bar of a form inside the main window: icon, title and buttons. It knows nothing of what they
// do: it sends the form system commands.
#pragma once
#include <QWidget>
#include <vector>

class TForm;
class TFormDrag;

class TCaptionBar : public QWidget {
  public:
    TCaptionBar(TForm& form, TFormDrag& drag);

    // Where the button of a system command is (SC_CLOSE, SC_MINIMIZE, SC_MAXIMIZE), in the bar; empty without
    // one.
    QRect ButtonRect(int command) const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    struct TButton {
        int Command;
        QRect Place;
    };

    // From left to right.
    std::vector<TButton> Buttons() const;
    int CommandAt(QPoint at) const;
    void Send(int command);
    void PaintTitle(QPainter& painter) const;
    void PaintButton(QPainter& painter, const TButton& button) const;
    void PaintSign(QPainter& painter, int command, const QRectF& place) const;

    TForm& FForm;
    TFormDrag& FDrag;
    int FHovered = 0;  // commands; 0 none
    int FPressed = 0;
};
