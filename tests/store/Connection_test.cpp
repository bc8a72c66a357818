#include "frame/store/Recordset.h"
#include "tests/support/TestStore.h"

#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace
{
namespace fs = std::filesystem;
using namespace StoreError;
using ErrorNumber::StoreRefusal;

void Write(const fs::path &file, std::streamoff at, const std::string &bytes)
{
    std::fstream stream(
        file, fs::exists(file) ? std::ios::in | std::ios::out | std::ios::binary : std::ios::out | std::ios::binary);
    stream.seekp(at);
    stream << bytes;
}

std::string Bytes(const fs::path &file)
{
    if (!fs::is_regular_file(file))
        return {};
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void MakeAndRun(const fs::path &file, std::string_view sql)
{
    ASSERT_TRUE(MakeStore(file, StoreContent::Sample));
    Connection connection;
    connection.Open(file);
    connection.Execute(sql);
}

/// Long enough for more than one page.
std::string FillTips(std::int32_t rows)
{
    return "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(rows)
        + ") INSERT INTO TipOfDay SELECT printf('%.500c', 'x') FROM n";
}

class Store : public TestStore
{
protected:
    Store()
    {
        Run("INSERT INTO Port (PortID, PortName) VALUES (1, 'Valletta'), (2, 'Santos')");
        Run("INSERT INTO Ship (ShipID, ShipName, PortOfRegistry) VALUES (1, 'Harrow Tide', 1)");
        Run("INSERT INTO HydrostaticDataTable (ShipID, TMD) VALUES (1, 5.1)");
        Run("INSERT INTO DraftParticulars (RecordID, ShipID, VoyageID, PortID, IsLoading) VALUES (1, 1, '7', 2, True)");
        Run("INSERT INTO DraftDetails (DraftID, RecordID, DraftType, DateTime) VALUES (1, 1, 0, 202403151430)");
        Run("INSERT INTO DeductionTrans (DraftID, ItemID, Quantity) VALUES (1, 2, 12.5)");
    }

    static std::int32_t Count(const std::string &table) { return Ask("SELECT count(*) FROM " + table).ToLong(); }
    static std::int32_t ErrorOfRun(std::string_view sql)
    {
        return ErrorOf([&] { Run(sql); });
    }
};
} // namespace

TEST(ConnectionOpen, RefusesWhatIsNoSoundStoreAndCanBeOpenedAgain)
{
    struct Case {
        const char *name;
        std::function<void(const fs::path &)> make;
        std::int32_t error;
    };
    const std::vector<Case> cases = {
        {"missing", [](const fs::path &) {}, StoreRefusal},
        {"folder", [](const fs::path &file) { fs::create_directory(file); }, StoreRefusal},
        {"empty", [](const fs::path &file) { Write(file, 0, ""); }, StoreRefusal},
        {"short text", [](const fs::path &file) { Write(file, 0, "no store"); }, StoreRefusal},
        {"long text", [](const fs::path &file) { Write(file, 0, std::string(9000, 't')); }, StoreRefusal},
        {"last byte lost",
         [](const fs::path &file) {
             MakeAndRun(file, "DELETE FROM TipOfDay WHERE 0");
             fs::resize_file(file, fs::file_size(file) - 1);
         },
         StoreRefusal},
        {"half lost",
         [](const fs::path &file) {
             MakeAndRun(file, "DELETE FROM TipOfDay WHERE 0");
             fs::resize_file(file, fs::file_size(file) / 2);
         },
         StoreRefusal},
        {"page overwritten",
         [](const fs::path &file) {
             MakeAndRun(file, FillTips(100));
             Write(file, static_cast<std::streamoff>(fs::file_size(file)) - 3 * 4096, std::string(4096, '\xFF'));
         },
         StoreRefusal},
        {"table lost", [](const fs::path &file) { MakeAndRun(file, "DROP TABLE TipOfDay"); }, StoreRefusal},
        {"no application", [](const fs::path &file) { MakeAndRun(file, "PRAGMA application_id = 0"); }, ForeignStore},
        {"other program", [](const fs::path &file) { MakeAndRun(file, "PRAGMA application_id = 77"); }, ForeignStore},
        {"later version", [](const fs::path &file) { MakeAndRun(file, "PRAGMA user_version = 2"); }, ForeignStore},
    };
    const TestFolder folder;
    const fs::path good = folder.Path() / "good";
    ASSERT_TRUE(MakeStore(good, StoreContent::Initial));
    Connection connection;
    for (const Case &bad : cases) {
        SCOPED_TRACE(bad.name);
        const fs::path file = folder.Path() / bad.name;
        bad.make(file);
        const std::string before = Bytes(file);
        EXPECT_EQ(ErrorOf([&] { connection.Open(file); }), bad.error);
        EXPECT_FALSE(connection.IsOpen());
        EXPECT_EQ(Bytes(file), before) << "what is refused is left as it is";
        connection.Open(good);
        EXPECT_EQ(ErrorOf([&] { connection.Open(good); }), WrongState);
        connection.Close();
        EXPECT_EQ(ErrorOf([&] { connection.Close(); }), WrongState);
    }
    EXPECT_FALSE(fs::exists(folder.Path() / "missing"));
}

TEST(ConnectionOpen, RefusesAnUnreadableFileAndOnlyReadsAProtectedOne)
{
    const TestFolder folder;
    const fs::path file = folder.Path() / "DS.dat";
    ASSERT_TRUE(MakeStore(file, StoreContent::Initial));
    Connection connection;
    fs::permissions(file, fs::perms::none);
    if (std::ifstream(file).is_open())
        GTEST_SKIP() << "file permissions do not bind this user";
    EXPECT_EQ(ErrorOf([&] { connection.Open(file); }), StoreRefusal);
    fs::permissions(file, fs::perms::owner_read);
    connection.Open(file);
    EXPECT_EQ(ErrorOf([&] { connection.Execute("DELETE FROM TipOfDay"); }), StatementFailed);
}

TEST_F(Store, WhatACrashLeftHalfWrittenIsRolledBackAtOpen)
{
    const fs::path copy = File().parent_path() / "copy";
    const std::int32_t tips = Count("TipOfDay");
    Run("PRAGMA cache_size = 4");
    gConnection->BeginTrans();
    Run(FillTips(1000));
    fs::copy_file(File(), copy);
    fs::copy_file(File().string() + "-journal", copy.string() + "-journal");
    gConnection->RollbackTrans();
    gConnection->Close();

    gConnection->Open(copy);
    EXPECT_EQ(Count("TipOfDay"), tips);
}

TEST_F(Store, AnotherProgramsLockKeepsTheStoreShut)
{
    Connection other;
    other.Open(File());
    Run("BEGIN EXCLUSIVE");
    Connection late;
    EXPECT_EQ(ErrorOf([&] { late.Open(File()); }), ErrorNumber::StoreRefusal);
    other.Execute("PRAGMA busy_timeout = 0");
    EXPECT_EQ(ErrorOf([&] { other.BeginTrans(); }), StatementFailed);
    EXPECT_FALSE(other.InTransaction());
    gConnection->RollbackTrans();
    late.Open(File());
}

TEST_F(Store, RunsOneStatementOrNone)
{
    const std::string insert = "INSERT INTO Port (PortName) VALUES ('Vigo')";
    for (const char *harmless : {"", ";", " ; ;\n"})
        EXPECT_EQ(ErrorOfRun(insert + harmless), 0) << harmless;
    EXPECT_EQ(ErrorOfRun("INSERT INTO Port (PortName) VALUES ('Vigo -- /* [north]')"), 0);
    EXPECT_EQ(Count("Port"), 6);
    for (const char *more :
         {"; DELETE FROM Port", "; x", ";;--\nDELETE FROM Port", "; SELECT 1", "; CREATE TABLE a (b)", " garbage",
          " -- and no more", "; /* DELETE FROM Port; */ ;", "; /* open"})
        EXPECT_EQ(ErrorOfRun(insert + more), StatementFailed) << more;
    EXPECT_EQ(ErrorOfRun("INSERT INTO Port (PortName) VALUES ('a" + std::string(1, '\0') + "')"), StatementFailed);
    for (const char *none : {"", " ", ";", "-- nothing", "no sql", "DELETE FROM NoTable"})
        EXPECT_EQ(ErrorOfRun(none), StatementFailed) << none;
    EXPECT_EQ(Count("Port"), 6);
    EXPECT_EQ(ErrorOfRun("SELECT * FROM Port"), 0);
}

TEST_F(Store, ATypedTextNeverBecomesPartOfAStatement)
{
    const std::string update = "UPDATE Port SET City = ";
    EXPECT_EQ(ErrorOfRun(update + "'swell at 24' -- calm later' WHERE PortID = 1"), StatementFailed);
    EXPECT_EQ(Quoted("quay -- 2 /* east */"), "'quay -- 2 /* east */'");
    for (const char *text : {"it's", "it''s", "5' - '6", "'"})
        EXPECT_EQ(ErrorOf([&] { static_cast<void>(Quoted(text)); }), StatementFailed) << text;
}

TEST_F(Store, OnlyTheTwoUniqueRulesRefuseADuplicate)
{
    const std::string survey = "INSERT INTO DraftParticulars (RecordID, ShipID, VoyageID, PortID, IsLoading) VALUES ";
    const std::string draft = "INSERT INTO DraftDetails (DraftID, RecordID, DraftType, DateTime) VALUES ";
    const std::vector<std::pair<std::string, std::int32_t>> cases = {
        {survey + "(2, 1, '7', 2, False)", StoreRefusal},
        {survey + "(1, 1, '8', 2, True)", StatementFailed},
        {survey + "(2, 1, '8', 2, 2)", StatementFailed},
        {survey + "(2, 99, '8', 2, True)", StatementFailed},
        {survey + "(2, 1, NULL, 2, True)", StatementFailed},
        {survey + "(2, 1, '8', 2, True)", 0},
        {"UPDATE DraftParticulars SET VoyageID = '7' WHERE RecordID = 2", StoreRefusal},
        {draft + "(2, 1, 0, 202403151430)", StoreRefusal},
        {draft + "(1, 1, 2, 202403151431)", StatementFailed},
        {draft + "(2, 1, 2, 202403151430)", 0},
        {draft + "(3, 1, 2, 202403151431)", 0},
        {"UPDATE DraftDetails SET [DateTime] = 202403151430 WHERE DraftID = 3", StoreRefusal},
        {"UPDATE DraftDetails SET SpecificGravity = 'heavy'", StatementFailed},
        {"INSERT INTO Ship (ShipName) VALUES ('O'Brien')", StatementFailed},
        {"INSERT INTO Ship (ShipName, LBP) VALUES ('a', \"b\")", StatementFailed},
    };
    for (const auto &[sql, error] : cases)
        EXPECT_EQ(ErrorOfRun(sql), error) << sql;
}

TEST_F(Store, DeletingAParentDeletesAllBelow)
{
    const std::vector<std::pair<const char *, std::string>> cases = {
        // what is left of Ship, HydrostaticDataTable, DraftParticulars, DraftDetails, DeductionTrans
        {"DELETE FROM Port WHERE PortID = 1", "00000"},
        {"DELETE FROM Port WHERE PortID = 2", "11000"},
        {"DELETE FROM Ship WHERE ShipID = 1", "00000"},
        {"DELETE FROM DraftParticulars WHERE RecordID = 1", "11000"},
        {"DELETE FROM DraftDetails AS DD WHERE DD.DraftID = 1", "11100"},
        {"DELETE FROM DeductionMaster WHERE ItemID = 2", "11110"},
    };
    for (const auto &[sql, left] : cases) {
        gConnection->BeginTrans();
        Run(sql);
        std::string counts;
        for (const char *table : {"Ship", "HydrostaticDataTable", "DraftParticulars", "DraftDetails", "DeductionTrans"})
            counts += std::to_string(Count(table));
        EXPECT_EQ(counts, left) << sql;
        gConnection->RollbackTrans();
    }
}

TEST_F(Store, OneFlatTransaction)
{
    const auto end = [](auto act) { return ErrorOf([&] { ((*gConnection).*act)(); }); };
    EXPECT_EQ(end(&Connection::CommitTrans), WrongState);
    EXPECT_EQ(end(&Connection::RollbackTrans), WrongState);

    gConnection->BeginTrans();
    EXPECT_EQ(end(&Connection::BeginTrans), WrongState);
    Run("DELETE FROM DeductionTrans");
    EXPECT_NE(ErrorOfRun("INSERT INTO DeductionTrans VALUES (1, 999, 5)"), 0);
    EXPECT_TRUE(gConnection->InTransaction());
    gConnection->RollbackTrans();
    EXPECT_EQ(Count("DeductionTrans"), 1);

    gConnection->BeginTrans();
    Run("DELETE FROM DeductionTrans");
    // A statement that makes SQLite itself roll back leaves nothing to roll back.
    EXPECT_NE(ErrorOfRun("INSERT OR ROLLBACK INTO Port (PortID) VALUES (NULL)"), 0);
    EXPECT_FALSE(gConnection->InTransaction());
    EXPECT_EQ(end(&Connection::RollbackTrans), WrongState);
    EXPECT_EQ(Count("DeductionTrans"), 1);

    gConnection->BeginTrans();
    Run("DELETE FROM DeductionTrans");
    gConnection->CommitTrans();
    gConnection->BeginTrans();
    Run("DELETE FROM Port");
    gConnection->Close();
    gConnection->Open(File());
    EXPECT_EQ(Count("DeductionTrans"), 0);
    EXPECT_EQ(Count("Port"), 2);
}
