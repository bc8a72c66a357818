#include "frame/store/Recordset.h"
#include "tests/support/TestStore.h"

#include <array>
#include <cmath>
#include <fstream>
#include <iterator>
#include <string>

namespace
{
namespace fs = std::filesystem;

class SampleStore : public TestStore
{
protected:
    SampleStore()
        : TestStore(StoreContent::Sample)
    {
    }
};

struct HydrostaticRow {
    double draft, displacement, tpc, mctc, lcb, lcf, km, kb;
};

HydrostaticRow Read(const Recordset &rows)
{
    const auto number = [&rows](const char *column) { return rows.Fields(column).ToDouble(); };
    return {number("TMD"), number("Displacement"), number("TPC"), number("MCTC"),
            number("LCB"), number("LCF"),          number("KM"),  number("KB")};
}
} // namespace

TEST_F(TestStore, ANewStoreHoldsItemsAndTipsAndNothingElse)
{
    EXPECT_EQ(Ask("SELECT group_concat(ItemID) FROM DeductionMaster").Text(), "2,3,24,25,26,27,28,29");
    EXPECT_GE(Ask("SELECT count(DISTINCT Tip) FROM TipOfDay").ToLong(), 30);
    for (const char *table :
         {"Port", "Ship", "HydrostaticDataTable", "DraftParticulars", "DraftDetails", "DeductionTrans"})
        EXPECT_EQ(Ask(std::string("SELECT count(*) FROM ") + table).ToLong(), 0) << table;
    EXPECT_EQ(std::distance(fs::directory_iterator(File().parent_path()), fs::directory_iterator()), 1);
}

TEST_F(TestStore, NoStoreIsMadeBesideWhatAnotherLeft)
{
    for (const char *ending : {"-journal", "-wal"}) {
        const fs::path file = File().parent_path() / "New.dat";
        const fs::path rest = file.string() + ending;
        std::ofstream(rest) << "left";
        try {
            static_cast<void>(MakeStore(file, StoreContent::Initial));
            ADD_FAILURE() << "made beside " << rest;
        } catch (const RuntimeError &error) {
            EXPECT_NE(error.Description().find(rest.string()), std::string::npos);
        }
        fs::remove(rest);
        EXPECT_TRUE(MakeStore(file, StoreContent::Initial));
        fs::remove(file);
    }
}

TEST_F(TestStore, EveryForeignKeyHasAnIndex)
{
    Recordset keys;
    keys.Open("SELECT m.name AS Child, k.[from] AS Col FROM sqlite_schema AS m, pragma_foreign_key_list(m.name) AS k",
              CursorType::Static, LockType::ReadOnly);
    EXPECT_EQ(keys.RecordCount(), 7);
    for (; !keys.AtEnd(); keys.MoveNext()) {
        const std::string child = keys.Fields("Child").Text();
        const std::string column = keys.Fields("Col").Text();
        EXPECT_GE(Ask("SELECT count(*) FROM pragma_index_list('" + child
                      + "') AS l, pragma_index_info(l.name) AS i "
                        "WHERE i.seqno = 0 AND i.name = '"
                      + column + "'")
                      .ToLong(),
                  1)
            << child << '.' << column;
    }
}

TEST(StoreMaker, NeverTouchesWhatIsThere)
{
    const TestFolder folder;
    const fs::path file = folder.Path() / "DS.dat";
    for (const std::string content : {"", "not a store, but somebody's"}) {
        std::ofstream(file) << content;
        EXPECT_FALSE(MakeStore(file, StoreContent::Sample));
        EXPECT_EQ(fs::file_size(file), content.size());
    }
    EXPECT_NE(ErrorOf([&] { (void)MakeStore(folder.Path(), StoreContent::Initial); }), 0);
    EXPECT_NE(ErrorOf([&] { (void)MakeStore(folder.Path() / "none" / "DS.dat", StoreContent::Initial); }), 0);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1);
}

TEST_F(SampleStore, ShipsArePhysicallyConsistent)
{
    EXPECT_EQ(Ask("SELECT count(*) FROM Port").ToLong(), 3);
    Recordset ships;
    ships.Open("SELECT * FROM Ship", CursorType::Static, LockType::ReadOnly);
    ASSERT_EQ(ships.RecordCount(), 2);
    for (; !ships.AtEnd(); ships.MoveNext()) {
        SCOPED_TRACE(ships.Fields("ShipName").Text());
        const auto ship = [&ships](const char *column) { return ships.Fields(column).ToDouble(); };
        Recordset table;
        table.Open("SELECT * FROM HydrostaticDataTable WHERE ShipID = " + ships.Fields("ShipID").Text()
                       + " ORDER BY TMD",
                   CursorType::Keyset, LockType::BatchOptimistic);
        EXPECT_GE(table.RecordCount(), 60);

        HydrostaticRow below = Read(table);
        EXPECT_LT(below.lcf, 0) << "a light ship floats about a point forward of midships";
        EXPECT_LT(below.displacement, ship("LightShip"));
        for (table.MoveNext(); !table.AtEnd(); table.MoveNext()) {
            const HydrostaticRow row = Read(table);
            SCOPED_TRACE(row.draft);
            const double step = row.draft - below.draft;
            EXPECT_NEAR(row.displacement - below.displacement, (row.tpc + below.tpc) / 2 * 100 * step, 1);
            EXPECT_GT(row.tpc, below.tpc);
            EXPECT_GT(row.mctc, below.mctc);
            EXPECT_GE(row.lcf, below.lcf);
            EXPECT_LT(row.lcf - below.lcf, 0.25);
            // The buoyancy that the layer adds lies at its LCF and at half its height.
            EXPECT_NEAR(row.lcb * row.displacement - below.lcb * below.displacement,
                        (row.lcf + below.lcf) / 2 * (row.displacement - below.displacement), 0.011 * row.displacement);
            EXPECT_NEAR(row.kb, row.draft * 0.52, 0.03 * row.draft);
            EXPECT_GT(row.km, row.kb);
            const double block = row.displacement / 1.025 / (ship("LBP") * ship("Breadth") * row.draft);
            EXPECT_TRUE(block > 0.5 && block < 0.9) << block;
            below = row;
        }
        EXPECT_GT(below.lcf, 0);
        EXPECT_GT(below.draft, ship("SummerDraft") + 0.5);

        table.Find("TMD >= " + ships.Fields("SummerDraft").SqlText(), 0, 1, Recordset::kBookmarkFirst);
        const HydrostaticRow summer = Read(table);
        EXPECT_NEAR(summer.displacement - summer.tpc * 100 * (summer.draft - ship("SummerDraft")),
                    ship("LightShip") + ship("SummerDeadweight"), 2);
    }
}
