#include "core/Survey.h"
#include "reports/Report.h"
#include "reports/ReportFilling.h"
#include "tests/support/TestStore.h"

#include <gmock/gmock.h>

#include <QFontMetricsF>

#include <set>

namespace
{
using testing::IsEmpty;

std::string Overlaps(const ReportLayout &layout)
{
    std::string found;
    for (const ReportLabel &one : layout.labels) {
        for (const ReportLabel &other : layout.labels) {
            if (&one < &other && one.left < other.left + other.width && other.left < one.left + one.width
                && one.top < other.top + other.height && other.top < one.top + one.height)
                found += one.name + " and " + other.name + "\n";
        }
    }
    return found;
}

TEST(ReportLayout, BothDesignsHoldTheSameLabelsApartFromEachOther)
{
    std::set<std::string> names[2];
    for (const ReportLayout *layout : {&LoadportLayout(), &DischargePortLayout()}) {
        SCOPED_TRACE(layout->title);
        EXPECT_EQ(layout->labels.size(), 157U);
        EXPECT_THAT(Overlaps(*layout), IsEmpty());
        for (const ReportLabel &label : layout->labels) {
            EXPECT_TRUE(label.left >= 0 && label.top >= 0 && label.left + label.width <= layout->width
                        && label.top + label.height <= layout->height)
                << label.name;
            EXPECT_TRUE(names[layout == &LoadportLayout()].insert(label.name).second) << label.name;
        }
    }
    EXPECT_EQ(names[0], names[1]);
    EXPECT_TRUE(names[0].contains("Label1") && names[0].contains("Label60"));
}

const ReportLabel &Label(const ReportLayout &layout, std::string_view name)
{
    const auto found = std::ranges::find_if(
        layout.labels, [name](const ReportLabel &label) { return label.name == name || label.text == name; });
    EXPECT_NE(found, layout.labels.end()) << name;
    return found == layout.labels.end() ? layout.labels.front() : *found;
}

TEST(ReportLayout, TheDesignsDifferInPlacesAndTexts)
{
    struct Place {
        const char *label;
        int left[2]; // discharging, loading
        int top[2];
        int width[2];
    };
    for (const Place &place : {Place {"lblShipName", {2664, 1944}, {0, 0}, {4176, 5256}},
                               Place {"lblReportTitle", {1944, 1944}, {432, 432}, {5616, 5256}},
                               Place {"lblSummerDraft", {8208, 8136}, {936, 936}, {1152, 1152}},
                               Place {"lblAftX", {7344, 7272}, {1800, 1800}, {2016, 2016}},
                               Place {"lblOfficialNo", {4896, 4824}, {1368, 1368}, {1656, 1656}},
                               Place {"lblPortName", {4176, 4248}, {2160, 2160}, {1944, 1872}},
                               Place {"lblCargo", {7272, 7272}, {2160, 2160}, {2088, 2016}},
                               Place {"lblInitTotDeductibles", {3384, 3384}, {5112, 5112}, {1728, 1728}},
                               Place {"lblFinDeflection", {6408, 6408}, {7632, 7560}, {1728, 1728}},
                               Place {"lblInitTPC", {3384, 3384}, {8568, 8424}, {1728, 1728}},
                               Place {"Displacement in Sea Water", {0, 0}, {8208, 8136}, {2448, 2736}},
                               Place {"lblResult1", {1944, 2448}, {11448, 10944}, {1152, 1224}},
                               Place {"lblResult2", {1944, 2448}, {11160, 11232}, {2808, 2304}},
                               Place {"lblFinComments", {1224, 1224}, {12672, 12456}, {6912, 6912}},
                               Place {"Suyveyor", {1872, 1944}, {13464, 13320}, {1152, 1152}}}) {
        for (const bool loading : {false, true}) {
            const ReportLabel &label = Label(loading ? LoadportLayout() : DischargePortLayout(), place.label);
            EXPECT_EQ(label.left, place.left[loading]) << place.label;
            EXPECT_EQ(label.top, place.top[loading]) << place.label;
            EXPECT_EQ(label.width, place.width[loading]) << place.label;
        }
    }
    for (const auto &[name, discharging, loading] :
         {std::tuple("lblResult2", "TOTAL CARGO DISCHARGED", "TOTAL CARGO LOADED"),
          std::tuple("lblInitDensity", "", "0 MT"), std::tuple("lblFinDensity", "", ""),
          std::tuple("lblInitMisc2", "0 MT", "0 MT"), std::tuple("lblPortOfRegistry", "lblPortOfReg", "lblPortOfReg"),
          std::tuple("Label8", "OFFICIAL NO.", "OFFICIAL NO")}) {
        EXPECT_EQ(Label(DischargePortLayout(), name).text, discharging);
        EXPECT_EQ(Label(LoadportLayout(), name).text, loading);
    }
    EXPECT_EQ(Label(LoadportLayout(), "lblReportTitle").points, 12);
    EXPECT_EQ(Label(DischargePortLayout(), "lblReportTitle").points, 11.25);
}

TEST(ReportLayout, CaptionsHaveRoomForTheirText)
{
    // Set a trifle smaller, so that the figure beside it stands apart.
    const std::set<std::string> narrow {"Disp. Corrected for Density", "Displacement in Sea Water", "SUMMER DRAFT"};
    for (const ReportLayout *layout : {&LoadportLayout(), &DischargePortLayout()}) {
        for (const ReportLabel &label : layout->labels) {
            QFont font(QStringLiteral("Liberation Sans"));
            font.setBold(label.bold);
            font.setPixelSize(qRound(label.points * 20));
            font.setHintingPreference(QFont::PreferNoHinting);
            const double width = QFontMetricsF(font).horizontalAdvance(QString::fromStdString(label.text));
            if (!narrow.contains(label.text)) {
                EXPECT_LE(width, label.width) << layout->title << ": " << label.text;
            }
        }
    }
}

class ReportFilling : public TestStore
{
protected:
    ReportFilling()
        : TestStore(StoreContent::Sample)
    {
        EXPECT_TRUE(mSurvey.SetShip(Value(1)));
    }

    Report mReport {DischargePortLayout()};
    Survey mSurvey {{.isLoading = "False", .noConstant = ""}};
};

TEST_F(ReportFilling, StartsFromTheDesignAndMakesNoCargoOfWhatWasNeverCalculated)
{
    clsDraft &final = mSurvey.Draft(Stage::Final);
    final.Deduction(Value(28), Value(2.5));
    final.ToSave(true);
    const ReportedHeader header {.voyage = "V1", .cargo = "Coal", .portOfRegistry = "Saldanha", .port = "Durban"};
    EXPECT_EQ(ErrorOf([&] { FillDischargePortReport(mReport, mSurvey, header); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([&] { FillLoadportReport(mReport, mSurvey, header); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([&] { FillDischargePortReport(mReport, mSurvey, header); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(mReport.Caption("lblFinMisc1"), "2.5 MT");

    mSurvey.New();
    FillDischargePortReport(mReport, mSurvey, {});
    for (const char *label : {"lblFinMisc1", "lblFinFwdMeanDraft", "lblPortName", "lblConstant", "lblInitDeflection"})
        EXPECT_EQ(mReport.Caption(label), Label(DischargePortLayout(), label).text);
    EXPECT_EQ(mReport.Caption("lblInitFwdMeanDraft"), " m");
    EXPECT_EQ(mReport.Caption("lblInitNGDisp"), " MT");
}
} // namespace
