#include "platform/ui/FormDrag.h"

#include <QApplication>
#include "platform/ui/Form.h"
#include "platform/ui/FormParts.h"

namespace {

constexpr int kCorner = 14;       // how far a corner reaches along the edges
constexpr int kLeastWidth = 120;  // of any form
constexpr int kMoveByCaption = 2;

// The variant that tells the edge in a size command.
int EdgeCode(Qt::Edges edges) {
    const int across = edges & Qt::LeftEdge ? 1 : edges & Qt::RightEdge ? 2 : 0;
    const int down = edges & Qt::TopEdge ? 3 : edges & Qt::BottomEdge ? 6 : 0;
    return across + down;
}

}  // namespace

Qt::Edges TFormDrag::EdgesAt(QPoint at) const {
    const QRect frame(QPoint(), FForm.Bounds().size());
    const int grip = TForm::FrameWidth();
    if (!FForm.Sizeable() || frame.adjusted(grip, grip, -grip, -grip).contains(at)) return {};
    Qt::Edges edges;
    edges.setFlag(Qt::LeftEdge, at.x() < kCorner);
    edges.setFlag(Qt::RightEdge, at.x() >= frame.width() - kCorner);
    edges.setFlag(Qt::TopEdge, at.y() < kCorner);
    edges.setFlag(Qt::BottomEdge, at.y() >= frame.height() - kCorner);
    return edges;
}

Qt::CursorShape TFormDrag::CursorFor(Qt::Edges edges) {
    const bool across = edges & (Qt::LeftEdge | Qt::RightEdge);
    const bool down = edges & (Qt::TopEdge | Qt::BottomEdge);
    if (across && down)
        return bool(edges & Qt::LeftEdge) == bool(edges & Qt::TopEdge) ? Qt::SizeFDiagCursor
                                                                       : Qt::SizeBDiagCursor;
    if (across) return Qt::SizeHorCursor;
    return down ? Qt::SizeVerCursor : Qt::ArrowCursor;
}

void TFormDrag::Press(QPoint at, Qt::Edges edges) {
    if (FForm.WindowState() == wsMaximized) return;
    FPhase = Waiting;
    FEdges = edges;
    FPressedAt = FNow = at;
}

void TFormDrag::Move(QPoint at) {
    FNow = at;
    if (FPhase == Waiting && (at - FPressedAt).manhattanLength() >= QApplication::startDragDistance()) Ask();
    if (FPhase != Running) return;
    const QRect place = FEdges ? Sized(at - FBegunAt) : Moved(at - FBegunAt);
    FForm.SetBounds(place.left(), place.top(), place.width(), place.height());
}

void TFormDrag::Ask() {
    FPhase = Asking;
    FForm.Perform(WM_SYSCOMMAND, FEdges ? SC_SIZE + EdgeCode(FEdges) : SC_MOVE + kMoveByCaption);
    if (FPhase == Asking) FPhase = Idle;
}

void TFormDrag::Begin() {
    if (FPhase != Asking) return;
    FForm.Perform(WM_ENTERSIZEMOVE);
    FPhase = Running;
    FBegunAt = FPressedAt;
    FBegun = FForm.Bounds();
}

void TFormDrag::Release() {
    const bool moved = std::exchange(FPhase, Idle) == Running;
    if (moved) FForm.Perform(WM_EXITSIZEMOVE);
}

QRect TFormDrag::Moved(QPoint by) const {
    const QRect place = FBegun.translated(by);
    return {TClientArea::Reachable(place, FForm.Widget()->parentWidget()->size()), place.size()};
}

QRect TFormDrag::Sized(QPoint by) const {
    const QSize least = QSize(kLeastWidth, TForm::CaptionHeight() + TForm::FrameWidth())
                            .expandedTo(FForm.Widget()->minimumSize());
    const QSize most = FForm.Widget()->maximumSize();
    const auto limited = [](int length, int low, int high) {
        return std::clamp(length, low, std::max(low, high));
    };
    const int across = FEdges & Qt::LeftEdge ? -by.x() : FEdges & Qt::RightEdge ? by.x() : 0;
    const int down = FEdges & Qt::TopEdge ? -by.y() : FEdges & Qt::BottomEdge ? by.y() : 0;
    QRect place = FBegun;
    const int width = limited(place.width() + across, least.width(), most.width());
    const int height = limited(place.height() + down, least.height(), most.height());
    if (FEdges & Qt::LeftEdge) place.setLeft(place.right() - width + 1);
    if (FEdges & Qt::TopEdge) place.setTop(std::max(0, place.bottom() - height + 1));
    place.setWidth(width);
    if (!(FEdges & Qt::TopEdge)) place.setHeight(height);
    return place;
}
