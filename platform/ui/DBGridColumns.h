// The columns of a data grid. A column is bound to a field by name and keeps that name whatever happens to
// the field: without one it draws empty cells. Its index is its place on screen, hidden columns counted.
//
//     TColumn* name = grid->Columns().Add(u"NM_CLIENTE"_s, u"Nome"_s, 220);
//     name->SetVisible(false);
//     grid->Columns().Move(2, 0);
#pragma once
#include <memory>
#include <optional>
#include <vector>
#include "platform/data/Field.h"
#include "platform/rtl/Strings.h"

class TColumn;

// What columns ask of the grid that shows them.
class TColumnsHost {
  public:
    virtual TDataSet* ColumnsDataSet() const = 0;
    // Pixels that `column` needs for its title and its field's display width.
    virtual int NaturalWidth(const TColumn& column) const = 0;
    // Something that is drawn has changed.
    virtual void ColumnsChanged() = 0;

  protected:
    ~TColumnsHost() = default;
};

class TColumnTitle {
  public:
    // What was set; before that the field's display label, or the field's name without a field. One line: breaks
    // are blanks.
    UnicodeString Caption() const;
    void SetCaption(const UnicodeString& caption);

  private:
    friend class TColumn;
    friend class TDBGridColumns;
    explicit TColumnTitle(TColumn& column) : FColumn(column) {}
    TColumn& FColumn;
    std::optional<UnicodeString> FCaption;
};

class TColumn {
  public:
    const UnicodeString& FieldName() const { return FFieldName; }
    void SetFieldName(const UnicodeString& name);

    // The field of that name in the grid's dataset; null without dataset or field.
    TField* Field() const;

    TColumnTitle& Title() { return FTitle; }
    const TColumnTitle& Title() const { return FTitle; }

    // Pixels, at least 8. Until it is set, wide enough for the title and the field's display width.
    int Width() const;
    void SetWidth(int width);

    // Of the cells and the title; until it is set, the field's.
    TAlignment Alignment() const;
    void SetAlignment(TAlignment alignment);

    bool Visible() const { return FVisible; }
    void SetVisible(bool visible);

    // A read-only column cannot be edited in the grid.
    bool ReadOnly() const { return FReadOnly; }
    void SetReadOnly(bool readOnly) { FReadOnly = readOnly; }

    // Values to choose from, for whoever searches or edits the column.
    TStrings& PickList() { return FPickList; }
    const TStrings& PickList() const { return FPickList; }

    // Place among the columns; setting it moves the column there without firing the grid's OnColumnMoved.
    int Index() const;
    void SetIndex(int index);

  private:
    friend class TColumnTitle;
    friend class TDBGridColumns;
    TColumn(class TDBGridColumns& columns, const UnicodeString& fieldName);
    void Changed();

    class TDBGridColumns& FColumns;
    UnicodeString FFieldName;
    mutable TField* FField = nullptr;
    TColumnTitle FTitle;
    std::optional<int> FWidth;
    std::optional<TAlignment> FAlignment;
    TStringList FPickList;
    bool FVisible = true;
    bool FReadOnly = false;
};

class TDBGridColumns {
  public:
    explicit TDBGridColumns(TColumnsHost& host) : FHost(host) {}

    int Count() const { return int(FColumns.size()); }
    // `index`: 0 .. Count - 1; another one throws std::out_of_range.
    TColumn* Items(int index) const { return FColumns.at(size_t(index)).get(); }
    TColumn* operator[](int index) const { return Items(index); }

    // Appends a column. An empty `title` leaves the field's label, `width` 0 the natural width.
    TColumn* Add(const UnicodeString& fieldName, const UnicodeString& title = {}, int width = 0);
    void Delete(int index);
    void Clear();
    // Takes the column at `from` to the place `to`; places outside 0 .. Count - 1 change nothing.
    void Move(int from, int to);
    // Place of `column`, -1 when it is none of these.
    int IndexOf(const TColumn* column) const;

    // Forgets the fields found so far (`field`, or all of them for null), because they are going or the
    // dataset has changed; they are looked up again by name when they are needed.
    void ForgetField(const TField* field);

  private:
    friend class TColumn;
    TColumnsHost& FHost;
    std::vector<std::unique_ptr<TColumn>> FColumns;
};
