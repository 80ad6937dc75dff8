#include "platform/ui/ComCtrls.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QWheelEvent>
#include "platform/ui/Guard.h"
#include "platform/ui/Palette.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kTabPadding = 14;  // left and right of a tab's caption
constexpr int kTabLine = 2;      // the line that marks the selected tab

}  // namespace

// ---- TDateTimePicker ----

TDateTimePicker::TDateTimePicker(TComponent* owner) : TWidget(owner) {
    setLocale(QLocale(QLocale::Portuguese, QLocale::Brazil));
    setDisplayFormat(u"dd/MM/yyyy"_s);
    setCalendarPopup(true);
    setAccessibleName(u"Data"_s);
    connect(this, &QDateEdit::dateChanged, this, [this] {
        CalledByQt(this, [this] {
            if (OnChange) OnChange(this);
        });
    });
}

TDateTime TDateTimePicker::Date() const {
    return EncodeDate(date().year(), date().month(), date().day());
}

void TDateTimePicker::SetDate(TDateTime value) {
    const QSignalBlocker silent(this);
    const TDateParts parts = DecodeDate(value);
    setDate(QDate(parts.Year, parts.Month, parts.Day));
}

// Two digits already lead to the next part of the date; the slash that people type then must not lead on.
void TDateTimePicker::keyPressEvent(QKeyEvent* event) {
    if (std::exchange(FAdvanced, false) && event->text() == u"/"_s) return;
    const Section before = currentSection();
    TWidget::keyPressEvent(event);
    FAdvanced = event->text().size() == 1 && event->text()[0].isDigit() && currentSection() != before;
}

bool TDateTimePicker::DroppedDown() const {
    return calendarWidget()->isVisible();
}

// ---- TPageControl ----

TPageControl::TPageControl(TComponent* owner) : TWidget(owner) {
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(u"Páginas"_s);
    connect(this, &QStackedWidget::currentChanged, this, [this] {
        CalledByQt(this, [this] {
            if (OnChange) OnChange(this);
        });
    });
}

TPageControl::~TPageControl() {
    blockSignals(true);  // the pages end after this class's own members
    for (TTabSheet* page : FPages) page->FPageControl = nullptr;
}

TTabSheet* TPageControl::ActivePage() const {
    return currentIndex() < 0 ? nullptr : dynamic_cast<TTabSheet*>(currentWidget());
}

void TPageControl::SetActivePage(TTabSheet* page) {
    if (page && page->PageControl() == this) setCurrentWidget(page);
}

void TPageControl::SetActivePageIndex(int index) {
    setCurrentIndex(index);
}

TTabSheet* TPageControl::PageOf(const TControl* control) const {
    for (; control; control = control->Parent()) {
        for (TTabSheet* page : FPages) {
            if (page == control) return page;
        }
    }
    return nullptr;
}

TTabSheet::TTabSheet(TComponent* owner) : TWidget(owner) {}

TTabSheet::~TTabSheet() {
    SetPageControl(nullptr);
}

void TTabSheet::SetPageControl(TPageControl* pages) {
    if (FPageControl) {
        const QSignalBlocker silent(FPageControl);
        std::erase(FPageControl->FPages, this);
        FPageControl->removeWidget(this);
    }
    FPageControl = pages;
    if (!pages) return;
    TWidget::SetParent(pages);
    pages->FPages.push_back(this);
    pages->addWidget(this);
}

void TTabSheet::SetParent(TControl* parent) {
    if (auto* pages = dynamic_cast<TPageControl*>(parent)) return SetPageControl(pages);
    SetPageControl(nullptr);
    TWidget::SetParent(parent);
}

int TTabSheet::PageIndex() const {
    return FPageControl ? FPageControl->indexOf(this) : -1;
}

// ---- TIceTabSet ----

TIceTabSet::TIceTabSet(TComponent* owner) : TWidget(owner) {
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(u"Abas"_s);
    setDrawBase(false);
    setExpanding(false);
    setAttribute(Qt::WA_Hover);
    connect(this, &QTabBar::currentChanged, this, [this](int index) {
        CalledByQt(this, [this, index] {
            if (!FFilling && index >= 0 && OnTabSelected) OnTabSelected(this, Tabs(index));
        });
    });
}

TIceTab* TIceTabSet::Add(const UnicodeString& caption, int tag) {
    FTabs.emplace_back(new TIceTab(caption, tag));
    FFilling = true;
    addTab(caption);
    FFilling = false;
    return FTabs.back().get();
}

void TIceTabSet::Clear() {
    FFilling = true;
    while (count() > 0) removeTab(count() - 1);
    FTabs.clear();
    FFilling = false;
}

void TIceTabSet::SetTabIndex(int index) {
    setCurrentIndex(index);
}

void TIceTabSet::SelectNext(bool forward) {
    if (TabCount() > 0) SetTabIndex((TabIndex() + (forward ? 1 : TabCount() - 1)) % TabCount());
}

QSize TIceTabSet::tabSizeHint(int index) const {
    const QSize text = fontMetrics().size(Qt::TextShowMnemonic, tabText(index));
    return {text.width() + 2 * kTabPadding, std::max(text.height() + 8, 24)};
}

// Turning the wheel over the strip must not turn pages that are being filled in.
void TIceTabSet::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void TIceTabSet::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(Cores::Fio);
    painter.drawLine(0, height() - 1, width(), height() - 1);
    for (int i = 0; i < count(); ++i) PaintTab(painter, i);
}

void TIceTabSet::PaintTab(QPainter& painter, int index) const {
    const QRect tab = tabRect(index);
    const bool selected = index == currentIndex();
    const bool hovered = tab.contains(mapFromGlobal(QCursor::pos()));
    if (selected) {
        painter.fillRect(tab, Cores::Trabalho);
        painter.fillRect(QRect(tab.left(), tab.top(), tab.width(), kTabLine), Cores::Destaque);
        painter.setPen(Cores::Fio);
        painter.drawLine(tab.left(), tab.top() + kTabLine, tab.left(), tab.bottom());
        painter.drawLine(tab.right(), tab.top() + kTabLine, tab.right(), tab.bottom());
    }
    painter.setPen(selected || hovered ? Cores::Texto : Cores::Dica);
    painter.drawText(tab, Qt::AlignCenter | Qt::TextShowMnemonic, tabText(index));
}
