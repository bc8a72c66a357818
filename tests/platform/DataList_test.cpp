#include "frame/controls/DataList.h"

#include "frame/store/Recordset.h"
#include "tests/support/TestStore.h"
#include "tests/support/UserActs.h"

#include <gmock/gmock.h>

#include <QTest>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

// A list of ports, two of the same name and one with none.
class DataListTest : public TestStore
{
protected:
    DataListTest()
    {
        Run("INSERT INTO Port (PortID, PortName, City) VALUES (7, 'a', 'Aden'), (8, 'b', 'Basra'), (9, 'c', 'Basra'), "
            "(11, 'd', NULL)");
        QObject::connect(&mList, &DataList::Click, [this] { mPicked.push_back(mList.BoundValue().ToLong()); });
        QObject::connect(&mList, &DataList::DelPressed, [this] { mPicked.push_back(0); });
        mRows.Open("SELECT PortID, City FROM Port ORDER BY PortID", CursorType::Static, LockType::ReadOnly);
        mRows.MoveLast();
        mList.SetRows(mRows, "City", "PortID");
        ShowActive(mList);
    }

    [[nodiscard]] QPoint Place(int row) const { return mList.visualRect(mList.model()->index(row, 0)).center(); }
    std::vector<int> TakePicked() { return std::exchange(mPicked, {}); }

    DataList mList;
    Recordset mRows;
    std::vector<int> mPicked;
};

TEST_F(DataListTest, KeysPickFromTheFirstRowOn)
{
    mList.setFocus();
    EXPECT_TRUE(mList.BoundValue().IsAbsent());
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_End, Qt::Key_Delete})
        PressKey(mList, key);
    EXPECT_THAT(TakePicked(), ElementsAre(0, 7, 8, 9, 11, 0));
    Type(mList, "b");
    EXPECT_THAT(TakePicked(), ElementsAre(8));

    mList.SetRows(mRows, "City", "PortID");
    EXPECT_TRUE(mList.BoundValue().IsAbsent());
    PressKey(mList, Qt::Key_Down);
    EXPECT_THAT(TakePicked(), ElementsAre(7));
}

TEST_F(DataListTest, ThePickedRowIsAlwaysTheOneToldLast)
{
    Click(*mList.viewport(), Place(1));
    Click(*mList.viewport(), Place(1));
    QTest::mouseClick(mList.viewport(), Qt::LeftButton, Qt::ControlModifier, Place(1));
    EXPECT_THAT(TakePicked(), ElementsAre(8, 8, 8));
    EXPECT_EQ(mList.BoundValue(), Value(8));

    QTest::mousePress(mList.viewport(), Qt::LeftButton, {}, Place(0));
    QTest::mouseMove(mList.viewport(), Place(2));
    QTest::mouseRelease(mList.viewport(), Qt::LeftButton, {}, Place(2));
    const std::vector<int> picked = TakePicked();
    ASSERT_FALSE(picked.empty());
    EXPECT_EQ(mList.BoundValue(), Value(picked.back()));

    Click(*mList.viewport(), mList.viewport()->rect().bottomLeft() - QPoint(0, 2));
    EXPECT_THAT(TakePicked(), IsEmpty());
    EXPECT_FALSE(mList.BoundValue().IsAbsent());
}

} // namespace
