#include "tests/house/HouseWalk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

#include <fstream>

namespace
{

namespace fs = std::filesystem;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::UnorderedElementsAre;

// A small tree of sources in a folder of its own, gone with the test.
class MadeHouse : public testing::Test
{
protected:
    void SetUp() override { fs::create_directories(mRoot); }
    void TearDown() override { fs::remove_all(mRoot); }

    void Put(const std::string &file, const std::string &text) const
    {
        fs::create_directories((mRoot / file).parent_path());
        std::ofstream(mRoot / file) << text;
    }

    void PutReadmes(std::initializer_list<const char *> rooms) const
    {
        for (const std::string room : rooms)
            Put(room + "/README.md", "A room.\n");
    }

    const fs::path mRoot = fs::path(testing::TempDir()) / ("house-" + std::to_string(::getpid()));
};

TEST(House, KeepsItsOwnRules)
{
    const house::Walk walk = house::WalkHouse(KEELMARK_SOURCE_DIR);
    EXPECT_THAT(walk.mComplaints, IsEmpty());
    EXPECT_THAT(walk.mRooms, IsSupersetOf({"core/numeric", "frame/store", "core"}));
    EXPECT_GT(walk.mSources, 20);
    EXPECT_GT(walk.mIncludesAcrossRooms, 5);
}

TEST_F(MadeHouse, WhatIsAllowedRaisesNoComplaint)
{
    PutReadmes({"core/numeric", "frame/store", "core", "frame/platform", "frame/controls", "masters", "app"});
    Put("core/numeric/Value.h", "#include <string>\n");
    Put("frame/store/Recordset.h", "#include \"core/numeric/Value.h\"\n#include <sqlite3.h>\n");
    Put("core/clsShip.cpp", "#include \"clsShip.h\"\n  #  include \"frame/store/Recordset.h\" // its rows\n");
    Put("core/clsShip.h", "// #include \"app/main.h\"\n#include <queue>\n");
    Put("frame/platform/Form.cpp", "#include \"frame/controls/Grid.h\"\n#include <QWidget>\n");
    Put("frame/controls/Grid.h", "#include \"frame/platform/Form.h\"\n#include \"ui_Grid.h\"\n");
    Put("masters/frmPorts.cpp", "#include \"core/clsShip.h\"\n");
    Put("app/main.cpp", "#include \"masters/frmPorts.h\"\n");
    Put("tests/core/clsShip_test.cpp", "#include \"app/main.h\"\n" + std::string(house::LinesAllowed - 1, '\n'));
    Put("made/CMakeCache.txt", "");
    Put("made/moc_Form.cpp", "#include \"app/main.h\"\n");

    const house::Walk walk = house::WalkHouse(mRoot);
    EXPECT_THAT(walk.mComplaints, IsEmpty());
    EXPECT_EQ(walk.mSources, 9);
    EXPECT_EQ(walk.mIncludesAcrossRooms, 6);
}

TEST_F(MadeHouse, EveryBreachIsNamed)
{
    PutReadmes({"core/numeric", "frame/store", "core", "frame", "survey_loading", "masters"});
    Put("core/numeric/Value.cpp", "#include \"core/MsgBox.h\"\n#include <QtCore/qglobal.h>\n");
    Put("frame/store/Connection.cpp", "\n#include \"../platform/Form.h\"\n#include <qstring.h>\n");
    Put("frame/platform/Form.h", "#include \"frame/mdlMain.h\"\n");
    Put("core/clsDraft.cpp", "#include <QString>\n#include <survey/SurveyWindow.h>\n#include \"ui_frmOpen.h\"\n");
    Put("frame/mdlMain.h", "#include \"reports/Painter.h\"\n");
    Put("survey_loading/frmDraftSurvey.cpp", "#include \"survey_discharging/frmDSDispatch.h\"\n");
    Put("masters/frmPorts.cpp", std::string(house::LinesAllowed + 1, '\n'));
    Put("attic/Old.cpp", "\n");

    EXPECT_THAT(house::WalkHouse(mRoot).mComplaints,
                UnorderedElementsAre(
                    "attic/Old.cpp belongs to no room", "core/clsDraft.cpp:1 includes Qt: QString",
                    "core/clsDraft.cpp:2 must not know survey/SurveyWindow.h",
                    "core/clsDraft.cpp:3 includes Qt: ui_frmOpen.h",
                    "core/numeric/Value.cpp:1 must not know core/MsgBox.h",
                    "core/numeric/Value.cpp:2 includes Qt: QtCore/qglobal.h", "frame/platform has no README.md",
                    "frame/platform/Form.h:1 must not know frame/mdlMain.h",
                    "frame/mdlMain.h:1 must not know reports/Painter.h",
                    "frame/store/Connection.cpp:2 must not know frame/platform/Form.h",
                    "frame/store/Connection.cpp:3 includes Qt: qstring.h", "masters/frmPorts.cpp has 601 lines",
                    "survey_loading/frmDraftSurvey.cpp:1 must not know survey_discharging/frmDSDispatch.h"));
}

} // namespace
