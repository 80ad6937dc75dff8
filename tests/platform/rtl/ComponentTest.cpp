#include <gtest/gtest.h>
#include <QStringList>
#include "platform/rtl/Component.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Writes its name down when it ends.
class TNoted : public TComponent {
  public:
    TNoted(TComponent* owner, QStringView name, QStringList& ended) : TComponent(owner), FEnded(ended) {
        SetName(name.toString());
    }
    int NameChanges = 0;

  protected:
    ~TNoted() override { FEnded << Name(); }
    void NameChanged() override { ++NameChanges; }

  private:
    QStringList& FEnded;
};

}  // namespace

TEST(Component, OwnerFreesTheNewestFirst) {
    QStringList ended;
    auto* owner = new TDataModule(nullptr);
    new TNoted(owner, u"a", ended);
    auto* b = new TNoted(owner, u"b", ended);
    new TNoted(b, u"b1", ended);
    new TNoted(owner, u"c", ended);
    EXPECT_EQ(owner->ComponentCount(), 3);
    EXPECT_EQ(owner->Components(1), b);
    EXPECT_EQ(owner->FindComponent(u"B"), b);
    EXPECT_EQ(owner->FindComponent(u"b1"), nullptr);
    b->Free();
    EXPECT_EQ(owner->ComponentCount(), 2);
    owner->Free();
    EXPECT_EQ(ended, (QStringList{u"b"_s, u"b1"_s, u"c"_s, u"a"_s}));
}

TEST(Component, SurvivesAnOwnedOneFreedBySomebodyElse) {
    QStringList ended;
    auto* owner = new TDataModule(nullptr);
    auto* first = new TNoted(owner, u"first", ended);
    auto* last = new TNoted(owner, u"last", ended);
    const TFreeNotice notice = last->AddFreeNotification([&] {
        first->Free();
        owner->Free();  // already ending: nothing happens
        last->Free();
    });
    owner->Free();
    EXPECT_EQ(ended, (QStringList{u"first"_s, u"last"_s}));
}

TEST(Component, TellsItsEndWhileWhole) {
    QStringList ended, told;
    auto* component = new TNoted(nullptr, u"x", ended);
    const TFreeNotice kept = component->AddFreeNotification([&] { told << component->Name(); });
    TFreeNotice dropped = component->AddFreeNotification([&] { told << u"dropped"_s; });
    dropped.reset();
    component->Free();
    EXPECT_EQ(told, (QStringList{u"x"_s}));
}

TEST(Component, NameHookRunsOnlyOnChange) {
    QStringList ended;
    auto* component = new TNoted(nullptr, u"", ended);
    EXPECT_EQ(component->NameChanges, 0);
    component->SetName(u"x"_s);
    component->SetName(u"x"_s);
    EXPECT_EQ(component->NameChanges, 1);
    component->Free();
}

TEST(Component, RootFallsBackWhenTheInstalledOneEnds) {
    TComponent* plain = ApplicationRoot();
    auto* application = new TDataModule(nullptr);
    EXPECT_EQ(SetApplicationRoot(application), nullptr);
    EXPECT_EQ(ApplicationRoot(), application);
    application->Free();
    EXPECT_EQ(ApplicationRoot(), plain);
}
