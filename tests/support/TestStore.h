#pragma once

#include "core/numeric/Value.h"
#include "frame/store/StoreMaker.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string_view>

/// A folder of its own that goes away with the object.
class TestFolder
{
public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder &) = delete;
    TestFolder &operator=(const TestFolder &) = delete;

    [[nodiscard]] const std::filesystem::path &Path() const noexcept { return mPath; }

private:
    std::filesystem::path mPath;
};

/// Tests with a new store of their own, in a folder of its own, open as gConnection.
class TestStore : public ::testing::Test
{
protected:
    explicit TestStore(StoreContent content = StoreContent::Initial);
    ~TestStore() override;

    [[nodiscard]] std::filesystem::path File() const { return mFolder.Path() / "DS.dat"; }
    /// Runs one statement.
    static void Run(std::string_view sql);
    /// The one value that a SELECT gives.
    [[nodiscard]] static Value Ask(std::string_view sql);

private:
    TestFolder mFolder;
};

/// The number of the RuntimeError that the act raises, 0 where it raises none.
template<class Act> [[nodiscard]] std::int32_t ErrorOf(Act act)
{
    try {
        act();
    } catch (const RuntimeError &error) {
        return error.Number();
    }
    return 0;
}
