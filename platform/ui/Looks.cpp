#include <QApplication>
#include <QComboBox>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTranslator>
#include "platform/ui/Palette.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double kRadius = 3;
constexpr int kPadding = 2;  // between the frame of an edit and its text

// The sign of a message box: a disc of its colour with a character, at `size` device pixels.
QPixmap BoxSign(QChar character, const QColor& color, int size) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const QRectF disc(size * 0.04, size * 0.04, size * 0.92, size * 0.92);
    painter.drawEllipse(disc);
    QFont font = TextFont();
    font.setPixelSize(size * 5 / 8);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Cores::Trabalho);
    painter.drawText(disc, Qt::AlignCenter, character);
    return picture;
}

QIcon BoxIcon(QChar character, const QColor& color) {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 96, 128}) icon.addPixmap(BoxSign(character, color, size));
    return icon;
}

// Flat fields and buttons with hairlines; everything else as the base style draws it.
class TLooks : public QProxyStyle {
  public:
    TLooks() : QProxyStyle(u"Fusion"_s) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override {
        if (hint == SH_ComboBox_Popup) return 0;
        if (hint == SH_EtchDisabledText) return 0;
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override {
        switch (icon) {
            case SP_MessageBoxQuestion: return BoxIcon(u'?', Cores::Destaque);
            case SP_MessageBoxInformation: return BoxIcon(u'i', Cores::Destaque);
            case SP_MessageBoxWarning: return BoxIcon(u'!', Cores::Dica);
            case SP_MessageBoxCritical: return BoxIcon(u'×', Cores::Erro);
            default: return QProxyStyle::standardIcon(icon, option, widget);
        }
    }

    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override {
        const QRect room = QProxyStyle::subElementRect(element, option, widget);
        const auto* panel = qstyleoption_cast<const QStyleOptionFrame*>(option);
        const bool framed = element == SE_LineEditContents && panel && panel->lineWidth > 0;
        return framed ? room.adjusted(kPadding, 0, -kPadding, 0) : room;
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        switch (element) {
            case PE_PanelLineEdit: return DrawLineEdit(*option, *painter, widget);
            case PE_FrameLineEdit: return;
            case PE_Frame: return DrawFrame(*option, *painter);
            case PE_PanelButtonCommand: return DrawButton(*option, *painter);
            case PE_IndicatorCheckBox: return DrawCheck(*option, *painter);
            case PE_FrameFocusRect: return DrawFocus(*option, *painter, widget);
            default: QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        if (control != CC_ComboBox) return QProxyStyle::drawComplexControl(control, option, painter, widget);
        DrawField(*painter, option->rect, *option, !(option->state & State_Enabled));
        const QRect arrow = subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget);
        DrawArrow(*painter, QRectF(arrow).center(), option->state & State_Enabled ? Cores::Dica : Cores::Fio);
    }

  private:
    static void Round(QPainter& painter, const QRect& place, const QColor& line, const QColor& fill) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(line);
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
        painter.restore();
    }

    static void DrawField(QPainter& painter, const QRect& place, const QStyleOption& option, bool closed) {
        const bool focused = option.state & State_HasFocus;
        const QColor fill = closed ? Cores::Superficie : option.palette.color(QPalette::Base);
        Round(painter, place, focused ? Cores::Destaque : Cores::Fio, fill);
    }

    // The edit inside another field has no frame of its own.
    void DrawLineEdit(const QStyleOption& option, QPainter& painter, const QWidget* widget) const {
        const auto* panel = qstyleoption_cast<const QStyleOptionFrame*>(&option);
        const bool closed = !(option.state & State_Enabled) || option.state & State_ReadOnly;
        const QWidget* field = widget ? widget->parentWidget() : nullptr;
        if (field && (field->inherits("QComboBox") || field->inherits("QAbstractSpinBox"))) return;
        if (panel && panel->lineWidth > 0) return DrawField(painter, option.rect, option, closed);
        painter.fillRect(option.rect, closed ? Cores::Superficie : option.palette.color(QPalette::Base));
    }

    static void DrawFrame(const QStyleOption& option, QPainter& painter) {
        painter.save();
        painter.setPen(option.state & State_HasFocus ? Cores::Destaque : Cores::Fio);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
        painter.restore();
    }

    static void DrawButton(const QStyleOption& option, QPainter& painter) {
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
        const bool marked = button && button->features & QStyleOptionButton::DefaultButton;
        const bool accent = option.state & State_HasFocus || marked;
        const bool live = option.state & State_Enabled;
        QColor fill = live ? Cores::Trabalho : Cores::Superficie;
        if (live && option.state & State_MouseOver) fill = Cores::Zebra;
        if (option.state & (State_Sunken | State_On)) fill = Cores::Selecao;
        Round(painter, option.rect, accent && live ? Cores::Destaque : Cores::Fio, fill);
    }

    static void DrawCheck(const QStyleOption& option, QPainter& painter) {
        const bool live = option.state & State_Enabled;
        const bool on = option.state & (State_On | State_NoChange);
        const bool accent = option.state & (State_HasFocus | State_MouseOver);
        const QColor ink = live ? Cores::Destaque : Cores::Dica.lighter(140);
        Round(painter, option.rect, on || (accent && live) ? ink : Cores::Dica.lighter(150),
              on ? ink : Cores::Trabalho);
        if (!on) return;
        const QRectF box = QRectF(option.rect);
        const auto at = [&](double x, double y) {
            return box.topLeft() + QPointF(box.width() * x, box.height() * y);
        };
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Cores::Trabalho, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        if (option.state & State_On) {
            painter.drawPolyline(QPolygonF{at(0.25, 0.52), at(0.43, 0.70), at(0.76, 0.32)});
        } else {
            painter.drawLine(at(0.28, 0.5), at(0.72, 0.5));
        }
        painter.restore();
    }

    void DrawFocus(const QStyleOption& option, QPainter& painter, const QWidget* widget) const {
        for (const char* framed : {"QComboBox", "QPushButton", "QAbstractItemView"}) {
            if (widget && widget->inherits(framed)) return;
        }
        painter.save();
        painter.setPen(QPen(Cores::Destaque, 1, Qt::DotLine));
        painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
        painter.restore();
    }

    static void DrawArrow(QPainter& painter, QPointF center, const QColor& color) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(color, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(
            QPolygonF{center + QPointF(-3.5, -1.5), center + QPointF(0, 2), center + QPointF(3.5, -1.5)});
        painter.restore();
    }
};

QPalette Colors() {
    QPalette palette(Cores::Texto, Cores::Superficie, Cores::Trabalho, Cores::Fio.darker(125), Cores::Fio,
                     Cores::Texto, Cores::Trabalho, Cores::Trabalho, Cores::Superficie);
    palette.setColor(QPalette::AlternateBase, Cores::Zebra);
    palette.setColor(QPalette::Highlight, Cores::Selecao);
    palette.setColor(QPalette::HighlightedText, Cores::Texto);
    palette.setColor(QPalette::PlaceholderText, Cores::Dica);
    palette.setColor(QPalette::ToolTipBase, Cores::Trabalho);
    palette.setColor(QPalette::ToolTipText, Cores::Texto);
    palette.setColor(QPalette::Link, Cores::Destaque);
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, Cores::Excluido);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, Cores::Superficie);
    return palette;
}

void SpeakPortuguese(QApplication& app) {
    auto* texts = new QTranslator(&app);
    if (texts->load(u"qtbase_pt_BR"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(texts);
    }
}

}  // namespace

// The families are chosen here: a list of families would leave the choice to the font system, which may
// answer for a name that it does not have.
QFont TextFont(double points) {
    static const QString family = [] {
        const QStringList known = QFontDatabase::families();
        for (const QString& name :
             {u"Tahoma"_s, u"DejaVu Sans Condensed"_s, u"DejaVu Sans"_s, u"Liberation Sans"_s}) {
            if (known.contains(name)) return name;
        }
        return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
    }();
    QFont font(family);
    font.setPointSizeF(points);
    return font;
}

void ApplyLooks(QApplication& app) {
    QApplication::setStyle(new TLooks);
    QApplication::setPalette(Colors());
    QApplication::setFont(TextFont());
    SpeakPortuguese(app);
}
