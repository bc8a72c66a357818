#include "frame/store/Recordset.h"
#include "tests/support/TestStore.h"

#include <string>

namespace
{
using namespace StoreError;

class Edits : public TestStore
{
protected:
    Edits()
    {
        Run("INSERT INTO Port (PortID, PortName, City) VALUES (1, 'Antwerp', 'A'), (2, 'Santos', 'S'), (3, 'Vigo', "
            "'V')");
    }

    void OpenPorts(LockType lock) { mRows.Reopen("SELECT * FROM Port ORDER BY PortName", CursorType::Keyset, lock); }
    /// The names in the store, in the order of their keys.
    static std::string Stored()
    {
        return Ask("SELECT group_concat(PortName, ' ') FROM (SELECT PortName FROM Port ORDER BY PortID)").Text();
    }
    [[nodiscard]] std::string Name() const { return mRows.Fields("PortName").Text(); }

    Recordset mRows;
};
} // namespace

TEST_F(Edits, AKeysetSetWritesThrough)
{
    OpenPorts(LockType::Optimistic);
    mRows.AddNew();
    EXPECT_EQ(mRows.RecordCount(), 4);
    EXPECT_TRUE(mRows.Fields("PortID").IsNull());
    mRows.Fields("PortName", "Bilbao's");
    mRows.Fields("City", Value::Null());
    EXPECT_EQ(Stored(), "Antwerp Santos Vigo");
    mRows.Update();
    EXPECT_EQ(Stored(), "Antwerp Santos Vigo Bilbao's");
    EXPECT_EQ(mRows.Fields("PortID").ToLong(), 4);

    mRows.Fields("PortName", "Bilbao");
    mRows.Update();
    EXPECT_EQ(Stored(), "Antwerp Santos Vigo Bilbao");
    mRows.MoveFirst();
    mRows.Delete();
    EXPECT_EQ(Stored(), "Santos Vigo Bilbao");
    mRows.Requery();
    EXPECT_EQ(mRows.RecordCount(), 3);
    EXPECT_EQ(Name(), "Bilbao");
}

TEST_F(Edits, OnlyTheChangedFieldsOfARowAreWritten)
{
    OpenPorts(LockType::Optimistic);
    Run("UPDATE Port SET City = 'Anvers' WHERE PortID = 1");
    mRows.Fields("PortName", "Antwerpen");
    mRows.Update();
    EXPECT_EQ(Ask("SELECT City || PortName FROM Port WHERE PortID = 1").Text(), "AnversAntwerpen");
    Run("DELETE FROM Port WHERE PortID = 1");
    mRows.Fields("PortName", "Antwerp");
    EXPECT_EQ(ErrorOf([&] { mRows.Update(); }), StatementFailed) << "the row is gone";
}

TEST_F(Edits, ARefusedEditStaysPendingUntilItIsCancelled)
{
    OpenPorts(LockType::Optimistic);
    mRows.Fields("PortName", Value::Null());
    const auto fails = [this](auto act) { EXPECT_EQ(ErrorOf([&] { act(mRows); }), StatementFailed); };
    fails([](Recordset &rows) { rows.Update(); });
    fails([](Recordset &rows) { rows.MoveNext(); });
    fails([](Recordset &rows) { rows.Find("PortID = 2"); });
    fails([](Recordset &rows) { rows.AddNew(); });
    fails([](Recordset &rows) { rows.Requery(); });
    EXPECT_TRUE(mRows.Fields("PortName").IsNull());
    mRows.CancelUpdate();
    EXPECT_EQ(Name(), "Antwerp");

    mRows.MoveNext();
    mRows.AddNew();
    mRows.Fields("City", "nowhere");
    fails([](Recordset &rows) { rows.MoveFirst(); });
    mRows.Fields("PortName", "Zadar");
    mRows.CancelUpdate();
    EXPECT_EQ(mRows.RecordCount(), 3);
    EXPECT_EQ(Name(), "Santos") << "back where the set stood";

    // A move takes a good edit along.
    mRows.AddNew();
    mRows.Fields("PortName", "Zadar");
    mRows.MoveFirst();
    EXPECT_EQ(Stored(), "Antwerp Santos Vigo Zadar");

    // A row that was never kept goes without a trace.
    mRows.AddNew();
    mRows.Delete();
    EXPECT_EQ(Stored(), "Antwerp Santos Vigo Zadar");
    EXPECT_EQ(Name(), "Antwerp");
    mRows.Update();
    mRows.Close();
    EXPECT_EQ(Stored(), "Antwerp Santos Vigo Zadar");
}

TEST_F(Edits, ABatchSetStaysInMemory)
{
    OpenPorts(LockType::BatchOptimistic);
    mRows.Fields("PortName", Value::Null());
    mRows.MoveNext();
    mRows.Delete();
    mRows.AddNew();
    mRows.Fields("PortName", "Zadar");
    mRows.Fields("PortID", 77);
    EXPECT_EQ(mRows.RecordCount(), 3);
    mRows.Find("PortID >= 3", 0, 1, Recordset::kBookmarkFirst);
    EXPECT_EQ(Name(), "Vigo");
    mRows.Filter("PortID >= 4");
    EXPECT_EQ(Name(), "Zadar");
    mRows.Filter("");
    EXPECT_EQ(mRows.RecordCount(), 3) << "a deleted row stays deleted";
    EXPECT_EQ(Stored(), "Antwerp Santos Vigo");
    mRows.Requery();
    EXPECT_EQ(mRows.RecordCount(), 3);
    EXPECT_EQ(Name(), "Antwerp");
}

TEST_F(Edits, AnEmptyWorkingSetTakesRowsWithNumbersOfAnyKind)
{
    mRows.Open("SELECT * FROM DeductionTrans WHERE DraftID = -1", CursorType::Keyset, LockType::BatchOptimistic);
    for (const Value &quantity : {Value(Decimal::Parse("350.1234")), Value("350.1234"), Value(350.1234)}) {
        mRows.Find("ItemID = 2");
        EXPECT_TRUE(mRows.AtEnd());
        mRows.AddNew();
        mRows.Fields("ItemID", Decimal(2));
        mRows.Fields("Quantity", quantity);
        EXPECT_EQ(mRows.Fields("ItemID").Type(), Value::Kind::Long);
        EXPECT_EQ(mRows.Fields("Quantity").Type(), Value::Kind::Decimal);
        EXPECT_EQ(mRows.Fields("Quantity").Text(), "350.1234");
        mRows.Delete();
    }
    mRows.AddNew();
    EXPECT_EQ(ErrorOf([&] { mRows.Fields("Quantity", "much"); }), ErrorNumber::TypeMismatch);
    EXPECT_TRUE(mRows.Fields("Quantity").IsNull());
}

TEST_F(Edits, AWalkThatDeletesSkipsNoRow)
{
    for (const std::string doomed : {"1", "2", "3", "12", "23", "13", "123"}) {
        OpenPorts(LockType::BatchOptimistic);
        std::string seen;
        for (mRows.MoveFirst(); !mRows.AtEnd(); mRows.MoveNext()) {
            const std::string key = mRows.Fields("PortID").Text();
            seen += key;
            if (doomed.find(key) == std::string::npos)
                continue;
            mRows.Delete(1);
            EXPECT_EQ(ErrorOf([&] { (void)mRows.Fields("PortID"); }), NoCurrentRow);
            EXPECT_EQ(ErrorOf([&] { mRows.Delete(); }), NoCurrentRow);
        }
        EXPECT_EQ(seen, "123") << doomed;
        EXPECT_EQ(static_cast<std::size_t>(mRows.RecordCount()), 3 - doomed.size());
    }
    OpenPorts(LockType::BatchOptimistic);
    mRows.MoveLast();
    const Bookmark last = mRows.CurrentBookmark();
    mRows.Delete();
    mRows.Move(-1);
    EXPECT_EQ(Name(), "Santos");
    EXPECT_EQ(ErrorOf([&] { mRows.GoTo(last); }), NoCurrentRow);
    EXPECT_EQ(ErrorOf([&] { mRows.Delete(2); }), BadArgument);
}

TEST_F(Edits, RowsWithoutAKeyOfTheirOwnAreReadOnly)
{
    struct Case {
        const char *sql;
        CursorType cursor;
        LockType lock;
    };
    for (const Case &set :
         {Case {"SELECT * FROM Port", CursorType::Static, LockType::ReadOnly},
          Case {"SELECT * FROM Port", CursorType::Dynamic, LockType::Optimistic},
          Case {"SELECT PortName FROM Port", CursorType::Keyset, LockType::Optimistic},
          Case {"SELECT Tip AS PortName FROM TipOfDay", CursorType::Keyset, LockType::Optimistic},
          Case {"SELECT Port.*, ItemID FROM Port, DeductionMaster", CursorType::Keyset, LockType::Optimistic}}) {
        mRows.Reopen(set.sql, set.cursor, set.lock);
        EXPECT_EQ(ErrorOf([&] { mRows.Fields("PortName", "a"); }), ReadOnly) << set.sql;
        EXPECT_EQ(ErrorOf([&] { mRows.AddNew(); }), ReadOnly);
        EXPECT_EQ(ErrorOf([&] { mRows.Delete(); }), ReadOnly);
    }
    mRows.Reopen("SELECT PortID AS Number, upper(City) AS City, PortName FROM Port", CursorType::Keyset,
                 LockType::Optimistic);
    EXPECT_EQ(ErrorOf([&] { mRows.Fields("City", "a"); }), ReadOnly);
    mRows.Fields("PortName", "Anvers");
    mRows.Update();
    EXPECT_EQ(Stored(), "Anvers Santos Vigo");
}
