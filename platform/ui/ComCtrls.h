// Date picker, pages and tab strip.
//
//     auto* from = new TDateTimePicker(form);
//     from->SetDate(FirstDayOfMonth);                    // fires nothing
//     from->OnChange = [this](TComponent*) { Locate(u""_s); };
//
//     auto* pages = new TPageControl(form);
//     auto* page = new TTabSheet(form);
//     page->SetCaption(u"Geral"_s);
//     page->SetPageControl(pages);
//     tabs->Add(page->Caption(), 0);
#pragma once
#include <memory>
#include <QDateEdit>
#include <QStackedWidget>
#include <QTabBar>
#include <vector>
#include "platform/rtl/DateTime.h"
#include "platform/ui/Control.h"

// A date typed as dd/mm/yyyy or chosen from a calendar.
class TDateTimePicker : public TWidget<QDateEdit> {
  public:
    explicit TDateTimePicker(TComponent* owner);

    // The whole date shown (no time of day). Setting it fires no event.
    TDateTime Date() const;
    void SetDate(TDateTime date);

    // The calendar is open.
    bool DroppedDown() const;

    // The user made another whole, valid date, by keyboard, wheel or calendar. Half-typed dates are silent.
    std::function<void(TComponent*)> OnChange;

  protected:
    ~TDateTimePicker() override = default;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool FAdvanced = false;  // a digit completed its part, and the caret is at the next one
};

class TTabSheet;

// Pages of which one is shown. It draws no tabs of its own (a TIceTabSet stands in for them), and can take
// the focus, so that an edit commits its text when the focus is parked here.
class TPageControl : public TWidget<QStackedWidget> {
  public:
    explicit TPageControl(TComponent* owner);

    int PageCount() const { return int(FPages.size()); }
    TTabSheet* Pages(int index) const { return FPages.at(size_t(index)); }

    TTabSheet* ActivePage() const;
    void SetActivePage(TTabSheet* page);
    // -1 without pages; an index outside 0 .. PageCount - 1 changes nothing.
    int ActivePageIndex() const { return currentIndex(); }
    void SetActivePageIndex(int index);

    // The page that holds `control`, however deep; null when none of this control's pages does.
    TTabSheet* PageOf(const TControl* control) const;

    // Another page is shown, by code or by the user; silent when a page is taken out.
    std::function<void(TComponent*)> OnChange;

  protected:
    ~TPageControl() override;

  private:
    friend class TTabSheet;
    std::vector<TTabSheet*> FPages;
};

// One page. A disabled page still shows its controls, but nothing in it can be typed or focused.
class TTabSheet : public TWidget<QWidget> {
  public:
    explicit TTabSheet(TComponent* owner);

    TPageControl* PageControl() const { return FPageControl; }
    // Appends the page to `pages`; null takes it out.
    void SetPageControl(TPageControl* pages);
    // As SetPageControl when `parent` is a page control.
    void SetParent(TControl* parent) override;

    // Place among the pages; -1 outside of a page control.
    int PageIndex() const;

    // Whether a tab strip shows a tab for the page; the page itself can be shown either way.
    bool TabVisible() const { return FTabVisible; }
    void SetTabVisible(bool visible) { FTabVisible = visible; }

  protected:
    ~TTabSheet() override;

  private:
    friend class TPageControl;
    TPageControl* FPageControl = nullptr;
    bool FTabVisible = true;
};

// One tab of a strip: its text and a number of the program's.
class TIceTab {
  public:
    const UnicodeString& Caption() const { return FCaption; }
    int Tag() const { return FTag; }

  private:
    friend class TIceTabSet;
    TIceTab(const UnicodeString& caption, int tag) : FCaption(caption), FTag(tag) {}
    UnicodeString FCaption;
    int FTag;
};

// A strip of tabs that never takes the focus.
class TIceTabSet : public TWidget<QTabBar> {
  public:
    explicit TIceTabSet(TComponent* owner);

    int TabCount() const { return int(FTabs.size()); }
    TIceTab* Tabs(int index) const { return FTabs.at(size_t(index)).get(); }
    // Appends a tab; the first one added is selected, silently.
    TIceTab* Add(const UnicodeString& caption, int tag = 0);
    void Clear();

    // The selected tab, -1 without tabs. Another index, set by code or clicked, fires OnTabSelected; one
    // outside 0 .. TabCount - 1 changes nothing.
    int TabIndex() const { return currentIndex(); }
    void SetTabIndex(int index);
    // The tab after (or before) the selected one, from the last to the first and back.
    void SelectNext(bool forward);

    std::function<void(TIceTabSet* sender, TIceTab* tab)> OnTabSelected;

  protected:
    ~TIceTabSet() override = default;
    void paintEvent(QPaintEvent* event) override;
    QSize tabSizeHint(int index) const override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void PaintTab(QPainter& painter, int index) const;

    std::vector<std::unique_ptr<TIceTab>> FTabs;
    bool FFilling = false;
};
