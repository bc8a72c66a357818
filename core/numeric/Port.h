#pragma once

#include <type_traits>
#include <utility>

/// What stands for one thing of the program's surroundings: at first the program's own source of it.
template<class Source> class Port
{
public:
    explicit Port(Source own = Source())
        : mSource(std::move(own))
    {
    }
    Port(const Port &) = delete;
    Port &operator=(const Port &) = delete;

    /// The source in place.
    [[nodiscard]] const Source &operator*() const noexcept { return mSource; }
    /// Puts a source in place for good and hands back the one before.
    Source Set(Source source) { return std::exchange(mSource, std::move(source)); }

private:
    Source mSource;
};

/// While one lives, another source is in place; the one before comes back with its end. The last one made of a port
/// ends first.
template<class Source> class ScopedPort
{
public:
    ScopedPort(Port<Source> &port, std::type_identity_t<Source> source)
        : mPort(port)
        , mBefore(port.Set(std::move(source)))
    {
    }
    ~ScopedPort() { mPort.Set(std::move(mBefore)); }
    ScopedPort(const ScopedPort &) = delete;
    ScopedPort &operator=(const ScopedPort &) = delete;

private:
    Port<Source> &mPort;
    Source mBefore;
};
