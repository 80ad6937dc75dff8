// Rich text: RTF in and out, the frame's buttons, and the field behind it.
#include <gtest/gtest.h>
#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>

#include "forms/base/UFrameRichText.h"
#include "platform/data/Connection.h"
#include "platform/data/DataSource.h"
#include "platform/data/Field.h"
#include "platform/data/Query.h"
#include "platform/rtl/Rtf.h"
#include "platform/ui/Application.h"
#include "platform/ui/ComCtrls.h"
#include "platform/ui/Form.h"
#include "platform/ui/RtfDocument.h"
#include "tests/support/Screen.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString Html(const QByteArray& rtf) {
    QTextDocument document;
    LoadRtf(document, rtf);
    return document.toHtml().section(u"<body"_s, 1);
}

TEST(RtfDocument, KeepsLooksThroughWritingAndReading) {
    const char* const documents[] = {
        "{\\rtf1 Ol\\'e1 {\\b mundo} {\\i it\\ul lic}\\par segundo}",
        "{\\rtf1{\\colortbl ;\\red179\\green38\\blue30;\\red31\\green95\\blue168;}\\qc a {\\cf1 "
        "vermelho}\\par\\pard\\qr {\\cf2\\b x}}",
        "{\\rtf1 {\\pntext\\f1\\'B7\\tab}um\\par{\\pntext\\f1\\'B7\\tab}dois\\par\\pard fim\\line linha}",
        "{\\rtf1 chaves \\{\\} barra \\\\ \\u8364? \\u-10179?\\u-8704? emoji}",
        "{\\rtf1 \\par\\par vazio antes\\par}",
    };
    for (const char* rtf : documents) {
        SCOPED_TRACE(rtf);
        QTextDocument document;
        LoadRtf(document, rtf);
        const QByteArray written = SaveRtf(document);
        EXPECT_TRUE(IsRtf(written));
        EXPECT_EQ(Html(written), document.toHtml().section(u"<body"_s, 1));
    }
    EXPECT_TRUE(Html(documents[1]).contains(u"#b3261e"_s));
    EXPECT_TRUE(Html(documents[2]).contains(u"<li"_s));
    EXPECT_TRUE(SaveRtf(QTextDocument()).isEmpty());
    EXPECT_TRUE(Html("sem formato").contains(u"sem formato"_s));
}

class TFrmTexto : public TForm {
  public:
    using TForm::TForm;
    TFrameRichText* Frame = nullptr;
    TDataSource* Source = nullptr;
    TEdit* Other = nullptr;

  protected:
    void CreateControls() override {
        TForm::CreateControls();
        SetBounds(0, 0, 640, 400);
        Source = new TDataSource(this);
        auto* pages = NewControl<TPageControl>(this, this, u"Paginas"_s, QRect(8, 8, 600, 250));
        auto* page = new TTabSheet(this);
        page->SetPageControl(pages);
        Frame = new TFrameRichText(this);
        Frame->SetParent(page);
        Frame->SetAlign(alClient);
        Frame->Editor->SetDataSource(Source);
        Frame->Editor->SetDataField(u"OBS"_s);
        Other = NewControl<TEdit>(this, this, u"Edt"_s, QRect(8, 280, 100, kEditHeight));
    }
};

class RichText : public testing::Test {
  protected:
    void SetUp() override {
        Form = NewForm<TFrmTexto>(Application);
        auto* connection = new TFDConnection(Form);
        connection->Params()->SetText(u"Protocol=Local\nUser_Name=SYSDBA\nForcedWrites=False\nDatabase="_s +
                                      Folder.filePath(u"t.fdb"_s));
        connection->CreateDatabase();
        connection->ExecSQL(u"CREATE TABLE T (ID INTEGER NOT NULL PRIMARY KEY, OBS BLOB SUB_TYPE TEXT)"_s);
        connection->ExecSQL(u"INSERT INTO T VALUES (1, '{\\rtf1 a\\par\\qc{\\b negrito}}')"_s);
        Query = new TFDQuery(Form);
        Query->SetConnection(connection);
        Query->SQL()->SetText(u"SELECT * FROM T"_s);
        Query->Open();
        Form->Source->SetDataSet(Query);
        Form->Show();
        Edit = Form->Frame->Editor;
        Edit->SetFocus();
    }
    void TearDown() override { Form->Free(); }
    UnicodeString Stored() const { return Query->FieldByName(u"OBS"_s)->AsString(); }

    QTemporaryDir Folder;
    TFrmTexto* Form = nullptr;
    TFDQuery* Query = nullptr;
    TDBRichEdit* Edit = nullptr;
};

TEST_F(RichText, ButtonsFollowTheCaretAndChangeNothing) {
    EXPECT_TRUE(Form->Frame->LeftAlign->Down());
    EXPECT_FALSE(Form->Frame->BoldButton->Down());
    Edit->SetSelection(4, 0);
    EXPECT_TRUE(Form->Frame->BoldButton->Down());
    EXPECT_TRUE(Form->Frame->CenterAlign->Down());
    EXPECT_EQ(Form->Frame->CursorLine(), 1);
    EXPECT_EQ(Form->Frame->CursorLineStart(), 2);
    QTextCursor backwards = Edit->textCursor();
    backwards.setPosition(5);
    backwards.setPosition(2, QTextCursor::KeepAnchor);
    Edit->setTextCursor(backwards);
    EXPECT_TRUE(Form->Frame->BoldButton->Down());
    Edit->SetSelection(1, 3);
    EXPECT_EQ(Form->Frame->CursorLine(), 0);
    Press('Z', ssCtrl);  // that the text was loaded cannot be undone
    Edit->SetReadOnly(true);
    Press('U', ssCtrl);
    Press('R', ssCtrl);
    EXPECT_FALSE(Form->Frame->UnderlineButton->Down() || Form->Frame->RightAlign->Down());
    EXPECT_EQ(Query->State(), dsBrowse);
}

TEST_F(RichText, ParagraphsLoseTheirBulletsAlone) {
    Edit->selectAll();
    Press('L', ssCtrl | ssShift);
    EXPECT_TRUE(Edit->Rtf().contains("\\qc {\\pntext"));
    Press('L', ssCtrl | ssShift);
    EXPECT_FALSE(Edit->Rtf().contains("pntext"));
    EXPECT_TRUE(Edit->Rtf().contains("\\pard a\\par\r\n\\pard\\qc {"));
}

TEST_F(RichText, TypedLooksReachTheFieldWhenTheEditIsLeft) {
    Press('B', ssCtrl);
    TypeText(u"novo "_s);
    Edit->SetSelection(0, 2);
    Click(Form->Frame->UnderlineButton);
    Click(Form->Frame->RightAlign);
    Click(Form->Frame->BulletsButton);
    EXPECT_EQ(Query->State(), dsEdit);
    Form->Other->SetFocus();
    const UnicodeString stored = Stored();
    EXPECT_TRUE(stored.contains(u"{\\b\\ul no}{\\b vo }a"_s)) << stored.toStdString();
    EXPECT_TRUE(stored.contains(u"\\qr {\\pntext"_s));
    Query->Post();
    Query->Refresh();
    EXPECT_EQ(RtfToPlainText(Stored().toLatin1()), u"novo a\r\nnegrito"_s);
    EXPECT_TRUE(Form->Frame->BulletsButton->Down());
}

TEST_F(RichText, ColourIsOfTheSelection) {
    Edit->SetSelection(0, 1);
    Press('U', ssCtrl);
    Press('C', ssCtrl | ssShift);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
        QTest::keyClick(QApplication::focusWidget(), key);
    EXPECT_TRUE(Edit->Focused());
    Form->Other->SetFocus();
    EXPECT_TRUE(Stored().contains(u"\\red179\\green38\\blue30"_s));
    EXPECT_TRUE(Stored().contains(u"{\\ul\\cf1 a}"_s)) << Stored().toStdString();
    Edit->SetSelection(0, 100);
    Edit->textCursor().removeSelectedText();
    Edit->SetFocus();
    Form->Other->SetFocus();
    EXPECT_EQ(Stored(), UnicodeString());
}

}  // namespace
