#include "frame/store/maker/SampleShips.h"

#include "frame/store/Statement.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>

namespace
{
constexpr double kSeaWater = 1.025;
constexpr double kTableStep = 0.1;
constexpr double kFirstDraft = 1.0;

/// A ship and the few figures that her hydrostatics are drawn from: the waterplane coefficient at the keel and its
/// growth to the summer draft, the centre of flotation of the light and of the deep ship.
struct SampleShip {
    std::string_view particulars; ///< name, call sign, flag
    std::string_view numbers; ///< official and IMO number, gross and net tonnage
    double lbp, loa, breadth;
    double fwdX, midX, aftX;
    double lightShip, summerDraft, lastDraft;
    double waterplane, waterplaneGrowth;
    double lightLcf, deepLcf;
};

// The check digits of the IMO numbers are wrong, so that no ship afloat is meant.
constexpr std::array kShips {
    SampleShip {"'Harrow Tide', '9HZZ1', 'Malta'", "9990011, 9990011, 20150.0, 10940.0", 171.5, 179.9, 28.4, -1.15, 0,
                5.6, 8050, 10.05, 11.5, 0.793, 0.095, -7.4, 3.2},
    SampleShip {"'Corvane Reach', '9HZZ2', 'Malta'", "9990023, 9990023, 40230.0, 25390.0", 217, 225, 32.26, -1.6, 0.25,
                7.85, 11200, 14.1, 15.5, 0.852, 0.075, -10.2, 3.6},
};

/// The underwater form at one draft, built up from the keel.
class Hull
{
public:
    explicit Hull(const SampleShip &ship)
        : mShip(ship)
    {
    }

    void SinkTo(double draft)
    {
        const int layers = static_cast<int>(std::lround((draft - mDraft) * 1000));
        const double thickness = (draft - mDraft) / layers;
        for (int i = 0; i < layers; ++i) {
            const double height = mDraft + (i + 0.5) * thickness;
            const double weight = TpcAt(height) * 100 * thickness;
            mDisplacement += weight;
            mLengthMoment += weight * LcfAt(height);
            mHeightMoment += weight * height;
        }
        mDraft = draft;
    }

    [[nodiscard]] double Draft() const { return mDraft; }
    [[nodiscard]] double Displacement() const { return mDisplacement; }
    [[nodiscard]] double Tpc() const { return TpcAt(mDraft); }
    [[nodiscard]] double Lcf() const { return LcfAt(mDraft); }
    [[nodiscard]] double Lcb() const { return mLengthMoment / mDisplacement; }
    [[nodiscard]] double Kb() const { return mHeightMoment / mDisplacement; }

    /// From the waterplane's moments of inertia by D'Arcangelo's approximations.
    [[nodiscard]] double Km() const
    {
        const double inertia = (0.1216 * Waterplane(mDraft) - 0.0410) * mShip.lbp * std::pow(mShip.breadth, 3);
        return Kb() + inertia * kSeaWater / mDisplacement;
    }
    [[nodiscard]] double Mctc() const
    {
        const double fine = Waterplane(mDraft);
        const double inertia = (0.350 * fine * fine - 0.405 * fine + 0.146) * mShip.breadth * std::pow(mShip.lbp, 3);
        return kSeaWater * inertia / (100 * mShip.lbp);
    }

private:
    [[nodiscard]] double Waterplane(double height) const
    {
        const double bilge = 1 - 0.35 * std::exp(-height / 1.5);
        return (mShip.waterplane + mShip.waterplaneGrowth * std::pow(height / mShip.summerDraft, 0.9)) * bilge;
    }
    [[nodiscard]] double TpcAt(double height) const
    {
        return mShip.lbp * mShip.breadth * Waterplane(height) * kSeaWater / 100;
    }
    [[nodiscard]] double LcfAt(double height) const
    {
        const double deep = 1 / (1 + std::exp(-(height / mShip.summerDraft - 0.74) / 0.2));
        return mShip.lightLcf + (mShip.deepLcf - mShip.lightLcf) * deep;
    }

    const SampleShip &mShip;
    double mDraft = 0;
    double mDisplacement = 0;
    double mLengthMoment = 0;
    double mHeightMoment = 0;
};

std::string Number(double value, int places)
{
    std::array<char, 32> text {};
    std::snprintf(text.data(), text.size(), "%.*f", places, value);
    return text.data();
}

void Run(sqlite3 *handle, const std::string &sql)
{
    Statement(handle, sql).Step();
}

void WriteTable(sqlite3 *handle, const SampleShip &ship, const std::string &shipId)
{
    Hull hull(ship);
    const long rows = std::lround((ship.lastDraft - kFirstDraft) / kTableStep) + 1;
    for (long row = 0; row < rows; ++row) {
        hull.SinkTo(kFirstDraft + static_cast<double>(row) * kTableStep);
        Run(handle,
            "INSERT INTO HydrostaticDataTable (ShipID, TMD, Displacement, TPC, MCTC, LCB, LCF, KM, KB) VALUES ("
                + shipId + ", " + Number(hull.Draft(), 2) + ", " + Number(hull.Displacement(), 1) + ", "
                + Number(hull.Tpc(), 2) + ", " + Number(hull.Mctc(), 1) + ", " + Number(hull.Lcb(), 2) + ", "
                + Number(hull.Lcf(), 2) + ", " + Number(hull.Km(), 2) + ", " + Number(hull.Kb(), 2) + ")");
    }
}

void WriteShip(sqlite3 *handle, const SampleShip &ship, const std::string &shipId)
{
    Hull summer(ship);
    summer.SinkTo(ship.summerDraft);
    Run(handle,
        "INSERT INTO Ship (ShipID, PortOfRegistry, ShipName, CallSign, Flag, OfficialNo, IMONo, GrossTonnage, "
        "NetTonnage, LBP, LOA, Breadth, FwdX, MidX, AftX, LightShip, SummerDraft, SummerDeadweight) VALUES ("
            + shipId + ", 1, " + std::string(ship.particulars) + ", " + std::string(ship.numbers) + ", "
            + Number(ship.lbp, 2) + ", " + Number(ship.loa, 2) + ", " + Number(ship.breadth, 2) + ", "
            + Number(ship.fwdX, 2) + ", " + Number(ship.midX, 2) + ", " + Number(ship.aftX, 2) + ", "
            + Number(ship.lightShip, 0) + ", " + Number(ship.summerDraft, 2) + ", "
            + Number(summer.Displacement() - ship.lightShip, 0) + ")");
}
} // namespace

void WriteSample(sqlite3 *handle)
{
    Run(handle,
        "INSERT INTO Port (PortID, PortName, City, Country) VALUES (1, 'Valletta', 'Valletta', 'Malta'), "
        "(2, 'Richards Bay', 'Richards Bay', 'South Africa'), (3, 'Rotterdam', 'Rotterdam', 'Netherlands')");
    int number = 0;
    for (const SampleShip &ship : kShips) {
        const std::string shipId = std::to_string(++number);
        WriteShip(handle, ship, shipId);
        WriteTable(handle, ship, shipId);
    }
}
