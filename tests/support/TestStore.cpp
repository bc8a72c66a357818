#include "tests/support/TestStore.h"

#include "frame/store/Recordset.h"

#include <random>
#include <stdexcept>
#include <string>

TestFolder::TestFolder()
    : mPath(std::filesystem::temp_directory_path() / ("keelmark-test-" + std::to_string(std::random_device()())))
{
    if (!std::filesystem::create_directory(mPath))
        throw std::runtime_error("no folder for the test");
}

TestFolder::~TestFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(mPath, ignored);
}

TestStore::TestStore(StoreContent content)
{
    if (!MakeStore(File(), content))
        throw std::runtime_error("no store for the test");
    gConnection = std::make_unique<Connection>();
    gConnection->Open(File());
    // No test pulls the plug, and waiting for the disk is what would take the time.
    Run("PRAGMA synchronous = OFF");
}

TestStore::~TestStore()
{
    gConnection.reset();
}

void TestStore::Run(std::string_view sql)
{
    gConnection->Execute(sql);
}

Value TestStore::Ask(std::string_view sql)
{
    Recordset rows;
    rows.Open("SELECT (" + std::string(sql) + ") AS Answer", CursorType::Static, LockType::ReadOnly);
    return rows.Fields("Answer");
}
