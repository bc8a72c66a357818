#pragma once

#include <array>
#include <cstdint>

/// One stage of a survey under its three names: the tab, the draft type in the store and the caption. Nothing else
/// converts between them.
class Stage
{
public:
    static const Stage Initial;
    static const Stage Daily;
    static const Stage Final;
    /// In the order of the tabs.
    [[nodiscard]] static const std::array<Stage, 3> &All();
    /// The stage of a tab index from 0 to 2.
    [[nodiscard]] static const Stage &OfTab(int tab);

    [[nodiscard]] int Tab() const { return mTab; }
    [[nodiscard]] std::int16_t DraftType() const { return mDraftType; }
    [[nodiscard]] const char *Caption() const { return mCaption; }

    friend bool operator==(const Stage &left, const Stage &right) { return left.mTab == right.mTab; }

private:
    constexpr Stage(int tab, std::int16_t draftType, const char *caption)
        : mTab(tab)
        , mDraftType(draftType)
        , mCaption(caption)
    {
    }

    int mTab;
    std::int16_t mDraftType;
    const char *mCaption;
};
