#include "reports/ReportLayout.h"

#include <array>

namespace
{
constexpr double kCaptionPoints = 9.75;
constexpr double kShipNamePoints = 15.75;
constexpr int kLine = 216; ///< height of one line, and distance of most rows
constexpr int kInitialLeft = 3384;
constexpr int kFinalLeft = 6408;
constexpr int kFigureWidth = 1728;
constexpr int kRowCaptionWidth = 3312;

/// A measure of both designs.
struct Both {
    int discharging;
    int loading;

    constexpr Both(int same)
        : discharging(same)
        , loading(same)
    {
    }
    constexpr Both(int whenDischarging, int whenLoading)
        : discharging(whenDischarging)
        , loading(whenLoading)
    {
    }
    [[nodiscard]] constexpr int In(bool isLoading) const { return isLoading ? loading : discharging; }
};

constexpr auto kLeft = LabelAlignment::Left;
constexpr auto kCentre = LabelAlignment::Centre;
constexpr auto kRight = LabelAlignment::Right;

/// A label that stands alone. One without a name is a fixed caption.
struct Single {
    std::string_view name;
    std::string_view text;
    Both left;
    Both top;
    Both width;
    Both height = kLine;
    bool bold = false;
    LabelAlignment alignment = kLeft;
    double loadingPoints = kCaptionPoints;
    double dischargingPoints = kCaptionPoints;
};

constexpr Both kThird {6624, 6552}; ///< captions of the ship block's third column
constexpr Both kThirdFar {8208, 8136};
constexpr Both kThirdNear {7344, 7272};
constexpr Both kSecondFar {4896, 4824};

constexpr std::array kHead {
    Single {"lblShipName", "", {2664, 1944}, 0, {4176, 5256}, 384, true, kCentre, kShipNamePoints, kShipNamePoints},
    Single {"lblReportTitle", "", 1944, 432, {5616, 5256}, 288, true, kCentre, 12, 11.25},
    Single {"", "CALL SIGN", 0, 936, 1296, kLine, true},
    Single {"lblCallSign", "", 1368, 936, 2088},
    Single {"", "GRT", 3528, 936, 504, kLine, true},
    Single {"lblGrossTonnage", "", 4032, 936, 2448},
    Single {"", "SUMMER DRAFT", kThird, 936, 1512, kLine, true},
    Single {"lblSummerDraft", "", kThirdFar, 936, 1152},
    Single {"", "FLAG", 0, 1152, 1296, kLine, true},
    Single {"lblFlag", "", 1368, 1152, 2088},
    Single {"", "NRT", 3528, 1152, 504, kLine, true},
    Single {"lblNetTonnage", "", 4032, 1152, 2448},
    Single {"", "SUMMER DWT", kThird, 1152, 1512, kLine, true},
    Single {"lblSummerDeadweight", "", kThirdFar, 1152, 1152},
    Single {"", "PORT OF REG", 0, 1368, 1368, kLine, true},
    Single {"lblPortOfRegistry", "lblPortOfReg", 1368, 1368, 2088},
    Single {"", "OFFICIAL NO.", 3528, 1368, {1368, 1296}, kLine, true},
    Single {"lblOfficialNo", "", kSecondFar, 1368, 1656},
    Single {"", "FWD X", kThird, 1368, 720, kLine, true},
    Single {"lblFwdX", "", kThirdNear, 1368, 2016},
    Single {"", "L.O.A.", 0, 1584, 648, kLine, true},
    Single {"lblLOA", "", 648, 1584, 2808},
    Single {"", "LIGHT SHIP", 3528, 1584, {1368, 1296}, kLine, true},
    Single {"lblLightShip", "", kSecondFar, 1584, 1656},
    Single {"", "MID X", kThird, 1584, 720, kLine, true},
    // Fixed on purpose, whatever the ship's MidX.
    Single {"", "0 m", kThirdNear, 1584, 2016},
    Single {"", "L.B.P.", 0, 1800, 648, kLine, true},
    Single {"lblLBP", "", 648, 1800, 2808},
    Single {"", "BREADTH", 3528, 1800, {1368, 1296}, kLine, true},
    Single {"lblBreadth", "", kSecondFar, 1800, 1656},
    Single {"", "AFT X", kThird, 1800, 720, kLine, true},
    Single {"lblAftX", "", kThirdNear, 1800, 2016},
    Single {"", "Voyage", 0, 2160, 864, kLine, true},
    Single {"lblVoyageID", "", 864, 2160, 2592, 2 * kLine},
    Single {"", "PORT", 3528, 2160, 648, kLine, true},
    Single {"lblPortName", "", {4176, 4248}, 2160, {1944, 1872}, 2 * kLine},
    Single {"lblCargoLD", "Cargo", 6624, 2160, 648, kLine, true},
    Single {"lblCargo", "", 7272, 2160, {2088, 2016}, 2 * kLine},
    Single {"", "INITIAL", 4320, 2592, 792, kLine, true, kRight},
    Single {"", "FINAL", 7488, 2592, 648, kLine, true, kRight},
};

constexpr std::array kFoot {
    Single {"lblResult2", "TOTAL CARGO DISCHARGED", {1944, 2448}, {11160, 11232}, {2808, 2304}, kLine, true},
    Single {"lblTotCargoLoaded", "", 4824, {11160, 11232}, 2880, kLine, true},
    Single {"lblResult1", "CONSTANT", {1944, 2448}, {11448, 10944}, {1152, 1224}, kLine, true},
    Single {"lblConstant", "", 4824, {11448, 10944}, 2880, kLine, true},
    Single {"", "Comments", 288, {11736, 11592}, 1152, kLine, true},
    Single {"", "Initial", 504, {12096, 11952}, 648, kLine, true},
    Single {"lblInitComments", "", 1224, {12096, 11952}, 6912, {504, 432}},
    Single {"", "Final", 504, {12672, 12456}, 648, kLine, true},
    Single {"lblFinComments", "", 1224, {12672, 12456}, 6912, 504},
    Single {"", "Suyveyor", {1872, 1944}, {13464, 13320}, 1152, 210, true},
    Single {"", "Chief Officer", {5256, 5328}, {13464, 13320}, 1656, 210, true, kCentre},
    Single {"lblShipName2", "", 4032, {13680, 13536}, {4104, 4248}, 210, false, kCentre},
};

/// A caption with the Initial and the Final figure beside it, which are named for it.
struct FigureRow {
    Both top;
    std::string_view caption;
    std::string_view ending;
    std::string_view text;
    bool boldCaption = false;
    Both captionWidth = kRowCaptionWidth;
};

constexpr std::array kFigures {
    FigureRow {2880, "Date", "Date", ""},
    FigureRow {3096, "Time", "Time", ""},
    FigureRow {3312, "Fuel Oil", "FO", "0 MT"},
    FigureRow {3528, "Diesel Oil", "DO", "0 MT"},
    FigureRow {3744, "Lube Oil", "LO", "0 MT"},
    FigureRow {3960, "Fresh Water", "FW", "0 MT"},
    FigureRow {4176, "Ballast", "Ballast", "0 MT"},
    FigureRow {4392, "Provisions", "Provisions", "0 MT"},
    FigureRow {4608, "Misc-1", "Misc1", "0 MT"},
    FigureRow {4824, "Misc-2", "Misc2", "0 MT"},
    FigureRow {5112, "TOTAL DEDUCTIBLES", "TotDeductibles", "0 MT", true},
    FigureRow {{5472, 5400}, "Forward Mean Draft", "FwdMeanDraft", "0 m"},
    FigureRow {{5688, 5616}, "Forward Correction", "FwdCorrection", "0 m"},
    FigureRow {{5904, 5832}, "Corrected Draft Foward", "CorrDraftFwd", "0 m"},
    FigureRow {{6120, 6048}, "Aft Mean Draft", "AftMeanDraft", "0 m"},
    FigureRow {{6336, 6264}, "Aft Correction", "AftCorrection", "0 m"},
    FigureRow {{6552, 6480}, "Corrected Draft Aft", "CorrDraftAft", "0 m"},
    FigureRow {{6768, 6696}, "Mean of Fwd. & Aft. Draft", "FwdAftMean", "0 m"},
    FigureRow {{6984, 6912}, "Midship Port Draft", "MidPortDraft", "0 m"},
    FigureRow {{7200, 7128}, "Midship Starboard Draft", "MidStbdDraft", "0 m"},
    FigureRow {{7416, 7344}, "Mean Midship Draft", "MeanMidDraft", "0 m"},
    FigureRow {{7632, 7560}, "Hull Deflection", "Deflection", "0 cm"},
    FigureRow {{7920, 7848}, "True Mean Draft", "TrueMeanDraft", "0 m", true},
    FigureRow {{8208, 8136}, "Displacement in Sea Water", "DispInSeaWater", "0 MT", true, {2448, 2736}},
    FigureRow {{8568, 8424}, "TPC", "TPC", ""},
    FigureRow {{8784, 8640}, "LCF", "LCF", ""},
    FigureRow {{9000, 8856}, "dMCTC", "dMCTC", ""},
    FigureRow {{9216, 9072}, "1st Trim Correction", "1stTrimCorr", "0 MT"},
    FigureRow {{9432, 9288}, "2nd Trim Correction", "2ndTrimCorr", "0 MT"},
    FigureRow {{9648, 9504}, "Total Trim Correction", "TotTrimCorr", "0 MT"},
    FigureRow {{9864, 9720}, "Disp. Corrected for Trim & List", "DispAtEvenKeel", "0 MT"},
    FigureRow {{10080, 9936}, "Density", "Density", ""},
    FigureRow {{10296, 10152}, "Disp. Corrected for Density", "TrueDisplacement", "0 MT", false, {2160, 2448}},
    FigureRow {{10512, 10368}, "Deductions", "TotDeductibles2", "0 MT"},
    FigureRow {{10728, 10584}, "Initial/Final Net Displacement", "NGDisp", "0 MT", true},
};

class LayoutMaker
{
public:
    explicit LayoutMaker(bool isLoading)
        : mIsLoading(isLoading)
    {
        if (isLoading)
            mLayout = {"Loadport Draft Survey Report", 9288, 13746, {}};
        else
            mLayout = {"Discharge Port Draft Survey Report", 9360, 13920, {}};
        for (const Single &label : kHead)
            Add(label);
        for (const FigureRow &row : kFigures)
            Add(row);
        for (const Single &label : kFoot)
            Add(label);
        if (isLoading)
            GiveLoadingTexts();
    }

    ReportLayout mLayout;

private:
    void Add(const Single &label)
    {
        mLayout.labels.push_back({label.name.empty() ? CaptionName() : std::string(label.name),
                                  label.left.In(mIsLoading), label.top.In(mIsLoading), label.width.In(mIsLoading),
                                  label.height.In(mIsLoading), std::string(label.text), label.alignment,
                                  mIsLoading ? label.loadingPoints : label.dischargingPoints, label.bold});
    }

    void Add(const FigureRow &row)
    {
        Add(Single {
            .name = {},
            .text = row.caption,
            .left = 0,
            .top = row.top,
            .width = row.captionWidth,
            .height = kLine,
            .bold = row.boldCaption,
        });
        AddFigure("lblInit", kInitialLeft, row);
        AddFigure("lblFin", kFinalLeft, row);
    }

    void AddFigure(std::string_view prefix, int left, const FigureRow &row)
    {
        mLayout.labels.push_back({std::string(prefix).append(row.ending), left, row.top.In(mIsLoading), kFigureWidth,
                                  kLine, std::string(row.text), kRight, kCaptionPoints, false});
    }

    std::string CaptionName() { return "Label" + std::to_string(++mCaptions); }

    void GiveLoadingTexts()
    {
        for (ReportLabel &label : mLayout.labels) {
            if (label.name == "lblResult2")
                label.text = "TOTAL CARGO LOADED";
            else if (label.name == "lblInitDensity")
                label.text = "0 MT";
            else if (label.text == "OFFICIAL NO.")
                label.text = "OFFICIAL NO";
        }
    }

    bool mIsLoading;
    int mCaptions = 0;
};
} // namespace

const ReportLayout &LoadportLayout()
{
    static const ReportLayout layout = LayoutMaker(true).mLayout;
    return layout;
}

const ReportLayout &DischargePortLayout()
{
    static const ReportLayout layout = LayoutMaker(false).mLayout;
    return layout;
}
