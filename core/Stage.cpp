#include "core/Stage.h"

#include "core/clsDraft.h"

constinit const Stage Stage::Initial(0, DraftTypeCode::Initial, "Initial");
constinit const Stage Stage::Daily(1, DraftTypeCode::Daily, "Daily");
constinit const Stage Stage::Final(2, DraftTypeCode::Final, "Final");

const std::array<Stage, 3> &Stage::All()
{
    static const std::array<Stage, 3> stages {Initial, Daily, Final};
    return stages;
}

const Stage &Stage::OfTab(int tab)
{
    return All().at(static_cast<std::size_t>(tab));
}
