#include "benchmarks/BenchStore.h"

#include "frame/store/Connection.h"
#include "frame/store/StoreMaker.h"

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>
#include <random>

void BenchFailure(const std::string &what)
{
    std::fprintf(stderr, "benchmark failed: %s\n", what.c_str());
    std::exit(1);
}

BenchStore::BenchStore()
    : mFolder(std::filesystem::temp_directory_path() / ("keelmark-bench-" + std::to_string(std::random_device {}())))
{
    std::filesystem::create_directories(mFolder);
    const std::filesystem::path file = mFolder / "DS.dat";
    if (!MakeStore(file, StoreContent::Initial))
        BenchFailure("the store is there already");
    gConnection = std::make_unique<Connection>();
    gConnection->Open(file);
    if (sqlite3_open_v2(file.c_str(), &mPlain, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
        BenchFailure("the store cannot be opened");
    Plain("PRAGMA foreign_keys=ON");
    Plain("PRAGMA synchronous=EXTRA");
}

BenchStore::~BenchStore()
{
    sqlite3_close(mPlain);
    gConnection.reset();
    std::error_code ignored;
    std::filesystem::remove_all(mFolder, ignored);
}

void BenchStore::Plain(const std::string &sql) const
{
    char *message = nullptr;
    if (sqlite3_exec(mPlain, sql.c_str(), nullptr, nullptr, &message) != SQLITE_OK)
        BenchFailure(message);
}

void BenchStore::AddShip(int shipID, int rows) const
{
    const std::string ship = std::to_string(shipID);
    Plain("BEGIN");
    Plain("INSERT OR IGNORE INTO Port (PortID, PortName, City, Country) VALUES (1, 'Bench', 'Bench', 'Bench')");
    Plain(
        "INSERT INTO Ship (ShipID, ShipName, LBP, LOA, Breadth, FwdX, MidX, AftX, LightShip, CallSign, PortOfRegistry,"
        " OfficialNo, IMONo, Flag, GrossTonnage, NetTonnage, SummerDraft, SummerDeadweight) VALUES ("
        + ship + ", 'Ship " + ship
        + "', 180, 190, 30, -1.2, 0.3, 4.6, 7000, 'BENCH', 1, 1, 1, 'Bench', 30000, 18000, 12, 52000)");
    double displacement = 8000.0;
    for (int row = 0; row < rows; ++row) {
        const double tpc = 40.0 + 0.001 * row;
        char text[256];
        std::snprintf(text, sizeof text,
                      "INSERT INTO HydrostaticDataTable (ShipID, TMD, Displacement, TPC, MCTC, LCB, LCF, KM, KB)"
                      " VALUES (%d, %.2f, %.2f, %.3f, %.2f, -1.5, %.3f, 12.4, 4.1)",
                      shipID, 2.0 + 0.01 * row * 1200.0 / rows, displacement, tpc, 400.0 + 0.05 * row,
                      -4.0 + 0.001 * row);
        Plain(text);
        displacement += tpc * 1200.0 / rows;
    }
    Plain("COMMIT");
}

void BenchStore::AddSurvey(int recordID, int shipID) const
{
    const std::string record = std::to_string(recordID);
    Plain("INSERT INTO DraftParticulars (RecordID, ShipID, VoyageID, PortID, Cargo, Constant, IsLoading) VALUES ("
          + record + ", " + std::to_string(shipID) + ", 'V" + record + "', 1, 'Coal', 250, True)");
}
