// The parts of which a form is made: its client area, the shield over a disabled form, the area of the main
// form.
#pragma once
#include "platform/ui/Control.h"

class TForm;

// Where a form's controls stand. As a parent it stands for the form.
class TFormClient : public TWidget<QWidget> {
  public:
    explicit TFormClient(TForm& form);

  protected:
    ~TFormClient() override = default;
    TControl* ChildHost() override;
    void paintEvent(QPaintEvent* event) override;

  private:
    TForm& FForm;
};

// Transparent, over all of a disabled form: takes the mouse.
class TFormShield : public QWidget {
  public:
    explicit TFormShield(TForm& form);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    TForm& FForm;
};

// The area of the main form in which the other forms live.
class TClientArea : public TWidget<QWidget> {
  public:
    explicit TClientArea(TComponent* owner);

    // The place nearest to `place` at which the user still gets hold of a form's caption, in an area of that
    // size.
    static QPoint Reachable(const QRect& place, QSize area);

  protected:
    ~TClientArea() override = default;
    // Maximised forms fill it, and no form stays out of reach.
    void DoResize() override;
    void paintEvent(QPaintEvent* event) override;
};
