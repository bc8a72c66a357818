#include "frame/mdlMain.h"
#include "frame/platform/Fatal.h"
#include "frame/platform/Shell.h"
#include "masters/frmHDT.h"
#include "masters/frmPortMaster.h"
#include "masters/frmShipParticulars.h"
#include "reports/ReportPreview.h"
#include "reports/ReportPrinter.h"
#include "survey_discharging/frmDSDispatch.h"
#include "survey_loading/frmDraftSurvey.h"
#include "tests/strength/ChildProcess.h"
#include "tests/strength/RandomUser.h"
#include "tests/support/TestSettings.h"
#include "tests/support/TestStore.h"

#include <QApplication>

#include <fstream>
#include <iostream>

// Only there where the leak checker is.
extern "C" int __lsan_do_recoverable_leak_check() __attribute__((weak));

namespace
{
constexpr int kActsOfARun = 2500;
constexpr int kPatience = 240; // seconds for a run that takes some

class NoShell : public Shell
{
    void OpenLink(const QString &, const QString &) override { }
    void ShowHelp(const QString &) override { }
    void StartCalculator() override { }
    void StartNotepad() override { }
};

/// How a program of the random user came to its end.
struct End {
    int acts = 0;
    std::int32_t error = 0; ///< of the failure that ended it, 0 where it was closed
    std::string description;
};

std::istream &operator>>(std::istream &stream, End &end)
{
    stream >> end.acts >> end.error;
    return std::getline(stream >> std::ws, end.description);
}

class Nonsense : public TestStore, public testing::WithParamInterface<unsigned>
{
protected:
    Nonsense()
        : TestStore(StoreContent::Sample)
    {
        gConnection.reset();
    }

    // The whole program from its start, in this process; never returns to the test.
    int RunProgram(unsigned seed, int acts) const
    {
        RandomUser user(seed);
        const std::string end = (File().parent_path() / "end").string();
        const TestSettings settings(File().string() + ".ini");
        const ScopedPort shell(ShellPort(), std::make_unique<NoShell>());
        ChildFactoryPort(ChildWindow::HydrostaticData).Set([] { return new frmHDT; });
        ChildFactoryPort(ChildWindow::ShipParticulars).Set([] { return new frmShipParticulars; });
        ChildFactoryPort(ChildWindow::Port).Set([] { return new frmPortMaster; });
        ChildFactoryPort(ChildWindow::Loading).Set([] { return new frmDraftSurvey; });
        ChildFactoryPort(ChildWindow::Discharging).Set([] { return new frmDSDispatch; });
        const ScopedPort boxes(MsgBoxPort(), [&user](const Message &message) { return user.AnswerTo(message); });
        const ScopedPort printer(PrintPort(), [&user](const Report &) {
            if (user.OnceIn(3))
                throw RuntimeError(ErrorNumber::PrinterError);
        });
        const ScopedPort savePath(SavePathPort(), [this, &user](QWidget *, const QString &) {
            return QString::fromStdString(user.OnceIn(3) ? std::string() : File().string() + ".pdf");
        });
        const ScopedPort fatal(FatalPort(), [&](const RuntimeError &error) {
            std::ofstream(end) << user.ActsDone() << ' ' << error.Number() << ' ' << error.Description() << "; "
                               << user.Last() << "; told before: " << user.Told() << '\n';
            std::_Exit(EXIT_FAILURE);
        });
        user.Start(acts);
        if (!Main(File()))
            return 3;
        QApplication::exec();
        std::ofstream(end) << user.ActsDone() << " 0 closed\n";
        return __lsan_do_recoverable_leak_check && __lsan_do_recoverable_leak_check() ? 4 : 0;
    }

    [[nodiscard]] End EndOfRun() const
    {
        End end;
        std::ifstream(File().parent_path() / "end") >> end;
        return end;
    }
};

/// True where the program is known to end so.
bool IsKnown(const End &end)
{
    switch (end.error) {
    case 0:
    case ErrorNumber::TypeMismatch: // letters in a number field that was left without its check
    case ErrorNumber::Overflow: // a number too large for any there; two Daily drafts of one moment at closing
        return true;
    case ErrorNumber::NoObject: // the ship window went unsaved and left its commands on, with no window behind them
        return end.description.find("Keelmark-10088") != std::string::npos
            && end.description.find("in front") == std::string::npos;
    case ErrorNumber::NoSuchOperation: // the tip has no commands, but leaves those of the window behind it on
        return end.description.find("in front frmTipOfDay") != std::string::npos;
    default:
        return false;
    }
}

TEST_P(Nonsense, EndsInNoOtherWayThanTheKnownOnes)
{
    int acts = 0;
    for (unsigned start = 0; acts < kActsOfARun && !HasFailure(); ++start) {
        SCOPED_TRACE("seed " + std::to_string(GetParam()) + ", start " + std::to_string(start));
        std::filesystem::remove(File().parent_path() / "end");
        ChildProcess program([&] { return RunProgram(1000 * GetParam() + start, kActsOfARun - acts); });
        const int status = program.Wait(kPatience);
        EXPECT_TRUE(status == 0 || status == EXIT_FAILURE) << "crashed or hung";
        const End end = EndOfRun();
        EXPECT_TRUE(IsKnown(end)) << end.error << ", " << end.description;
        EXPECT_GT(end.acts, 0);
        acts += end.acts;
        std::cout << end.acts << " acts, then " << end.error << ' ' << end.description << '\n';
        Connection store;
        store.Open(File());
    }
    EXPECT_GE(acts, kActsOfARun);
}

INSTANTIATE_TEST_SUITE_P(Users, Nonsense, testing::Range(1U, 9U));
} // namespace
