#include "core/numeric/RuntimeError.h"
#include "frame/store/StoreMaker.h"

#include <iostream>
#include <span>
#include <string_view>

int main(int argc, char **argv)
{
    std::span<char *> arguments(argv, static_cast<std::size_t>(argc));
    arguments = arguments.subspan(arguments.empty() ? 0 : 1);
    StoreContent content = StoreContent::Initial;
    if (!arguments.empty() && std::string_view(arguments.front()) == "--sample") {
        content = StoreContent::Sample;
        arguments = arguments.subspan(1);
    }
    if (arguments.size() != 1 || std::string_view(arguments.front()).starts_with('-')) {
        std::cerr << "Usage: keelmark_store_maker [--sample] FILE\n";
        return 2;
    }
    const std::filesystem::path file = arguments.front();
    try {
        std::cout << (MakeStore(file, content) ? "made " : "kept ") << file.string() << '\n';
    } catch (const RuntimeError &error) {
        std::cerr << file.string() << ": " << error.Description() << '\n';
        return 1;
    }
}
