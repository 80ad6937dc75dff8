// Records kept back until they are written together: the items of a record that is not saved yet.
#include "tests/platform/data/Script.h"

namespace {

TEST_F(ScriptTest, RecordsAreKeptBack) {
    const auto cached = [&](const QStringList& a) {
        FQuery = Query(a[0]);
        FQuery->SetCachedUpdates(true);
        FQuery->Open();
        return QString();
    };
    Run("cache", {{"Cached", cached}});
}

}  // namespace
