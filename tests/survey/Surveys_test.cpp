#include "frame/controls/Colours.h"
#include "reports/Report.h"
#include "reports/ReportPdf.h"
#include "survey_discharging/frmDSDispatch.h"
#include "survey_loading/frmDraftSurvey.h"
#include "tests/survey/SurveyDesk.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QJsonArray>
#include <QLineEdit>
#include <QProcess>

namespace
{
std::string Words(const QJsonValue &value)
{
    return value.toString().toStdString();
}

MsgIcon IconOf(const QJsonValue &value)
{
    const QString icon = value.toString();
    return icon == "critical"   ? MsgIcon::Critical
        : icon == "question"    ? MsgIcon::Question
        : icon == "exclamation" ? MsgIcon::Exclamation
        : icon == "information" ? MsgIcon::Information
                                : MsgIcon::None;
}

struct Workspace {
    const char *name;
    ChildWindow kind;
    ChildFactory factory;
};

// The workspaces whose surveys are played; those of the others are skipped.
const Workspace kWorkspaces[] = {{"loading", ChildWindow::Loading, [] { return new frmDraftSurvey; }},
                                 {"discharging", ChildWindow::Discharging, [] { return new frmDSDispatch; }}};

std::vector<std::string> Cases()
{
    std::vector<std::string> cases;
    for (const QJsonValue survey : Surveys()["cases"].toArray())
        cases.push_back(survey["id"].toString().replace('-', '_').toStdString());
    return cases;
}

QJsonObject Case(const std::string &id)
{
    for (const QJsonValue survey : Surveys()["cases"].toArray())
        if (survey["id"].toString().replace('-', '_').toStdString() == id)
            return survey.toObject();
    return {};
}

/// What a reader finds in the report's PDF, label by label.
std::string TextOnPaper(const Report &report)
{
    const TestFolder folder;
    const QString file = QString::fromStdString((folder.Path() / "report.pdf").string());
    SavePdf(report, file);
    QProcess reader;
    reader.start("pdftotext", {"-raw", file, "-"});
    EXPECT_TRUE(reader.waitForFinished());
    return QString::fromUtf8(reader.readAllStandardOutput()).simplified().toStdString();
}

const Workspace *WorkspaceOf(const std::string &id)
{
    for (const Workspace &workspace : kWorkspaces)
        if (Case(id)["workspace"].toString() == workspace.name)
            return &workspace;
    return nullptr;
}

/// Types what the steps of a survey say into the window of its workspace, and holds what it shows and tells against
/// what they expect.
class PlayedSurveys : public SurveyDesk, public testing::WithParamInterface<std::string>
{
protected:
    PlayedSurveys()
        : PlayedSurveys(WorkspaceOf(GetParam()) ? *WorkspaceOf(GetParam()) : kWorkspaces[0])
    {
    }

    void Play(const QJsonObject &survey);

private:
    explicit PlayedSurveys(const Workspace &workspace)
        : SurveyDesk(workspace.kind, workspace.factory)
    {
    }

    void Begin(const QJsonObject &survey);
    void Do(const QJsonObject &step);
    void Enter(const QJsonObject &step);
    void CompareTexts(const QJsonObject &texts) const;
    void CompareDeductions(const QJsonObject &quantities) const;
    void CompareShown(const QJsonObject &show) const;
    /// What the previewed report shows on the screen and on paper; closes the preview.
    static void CompareLabels(const QJsonObject &labels);
    void CompareResult(const QJsonArray &rows) const;
    /// Rows of cells from a first one on; a list of single texts is one column.
    void CompareCells(const QString &grid, int row, int column, const QJsonArray &rows) const;
    [[nodiscard]] int RowOf(const QString &item) const;
    [[nodiscard]] QCheckBox &ListCorrection() const;

    QHash<QString, QString> mItems; ///< names of the deductions by their numbers
};

void PlayedSurveys::Play(const QJsonObject &survey)
{
    Begin(survey);
    int number = 0;
    for (const QJsonValue value : survey["steps"].toArray()) {
        const QJsonObject step = value.toObject();
        SCOPED_TRACE("step " + std::to_string(++number) + ", " + Words(step["do"]));
        const QJsonObject expect = step["expect"].toObject();
        for (const QJsonValue message : expect["messages"].toArray())
            Tell(Words(message["text"]), IconOf(message["icon"]),
                 message["caption"].isNull() ? "Keelmark" : Words(message["caption"]));
        Do(step);
        mMessages.ExpectNoneLeft();
        CompareTexts(expect["fields"].toObject());
        CompareDeductions(expect["deductions"].toObject());
        CompareShown(expect["show"].toObject());
        CompareLabels(expect["labels"].toObject());
        if (expect.contains("done")) {
            EXPECT_EQ(!Text("txtTrueMeanDraft").empty(), expect["done"].toBool());
        }
    }
}

void PlayedSurveys::Begin(const QJsonObject &survey)
{
    const QJsonValue port = survey["port"];
    Run("INSERT INTO Port (PortName, City, Country) VALUES ('" + Words(port["PortName"]) + "', '" + Words(port["City"])
        + "', '" + Words(port["Country"]) + "')");
    AddShip(survey["ship"].toString().toUtf8());
    Run("DELETE FROM DeductionMaster");
    for (const QJsonValue item : survey["items"].toArray()) {
        const QString number = QString::number(item[0].toInt());
        mItems[number] = item[1].toString();
        Run("INSERT INTO DeductionMaster VALUES (" + number.toStdString() + ", '" + Words(item[1]) + "')");
    }
    Open();
    FillHeader(survey["voyage"].toString());
    Fill("txtCargo", survey["cargo"].toString());
}

void PlayedSurveys::Do(const QJsonObject &step)
{
    const QString act = step["do"].toString();
    if (act == "enter")
        Enter(step);
    else if (act == "calculate")
        Calculate();
    else if (act == "list")
        ClickBox(ListCorrection());
    else if (act == "save")
        PressSave();
    else if (act == "tab")
        ClickTab(step["tab"].toString());
    else if (act == "new_daily")
        Click(The("cmdNewDailyDraft"));
    else if (act == "pick")
        Pick("cmbDailyDateTime", step["index"].toInt());
    else if (act == "reopen")
        PressClose(), Open();
    else if (act == "report")
        PressPreview();
    else
        ADD_FAILURE() << "no such act";
}

void PlayedSurveys::Enter(const QJsonObject &step)
{
    // The order in which they stand in the file is lost, and is that of the walk.
    const QJsonObject fields = step["fields"].toObject();
    for (const char *name : {"txtDensity", "txtFwdPort", "txtFwdStbd", "txtMidShipPort", "txtMidshipStbd", "txtAftPort",
                             "txtAftStbd", "txtCargoIntendedToLoad", "txtBLQty"})
        if (fields.contains(name))
            Fill(name, fields[name].toString());
    const QJsonObject quantities = step["deductions"].toObject();
    for (auto quantity = quantities.begin(); quantity != quantities.end(); ++quantity)
        FillCell(RowOf(quantity.key()), quantity.value().toString());
    Fill("mbxDate", step["date"].toString().remove('-'));
    Fill("mbxTime", step["time"].toString().remove(':'));
    if (step.contains("comments"))
        Fill("txtComments", step["comments"].toString());
    if (step.contains("list") && step["list"].toBool() != ListCorrection().isChecked())
        ClickBox(ListCorrection());
    GoTo("cmdCalculate");
}

void PlayedSurveys::CompareTexts(const QJsonObject &texts) const
{
    for (auto text = texts.begin(); text != texts.end(); ++text)
        EXPECT_EQ(Text(text.key()), Words(text.value())) << text.key().toStdString();
}

void PlayedSurveys::CompareDeductions(const QJsonObject &quantities) const
{
    for (auto quantity = quantities.begin(); quantity != quantities.end(); ++quantity)
        EXPECT_EQ(Cell("fgrdDeduction", RowOf(quantity.key()), 1), Words(quantity.value()))
            << mItems[quantity.key()].toStdString();
}

void PlayedSurveys::CompareLabels(const QJsonObject &labels)
{
    if (labels.isEmpty())
        return;
    QWidget *preview = Frame().findChild<QWidget *>("ReportPreview");
    ASSERT_TRUE(preview);
    const bool loading = preview->windowTitle() == "Loadport Draft Survey Report";
    const Report &report = loading ? drptDraftSurvey() : drptDSDispatch();
    const std::string page = TextOnPaper(report);
    for (auto label = labels.begin(); label != labels.end(); ++label) {
        EXPECT_EQ(report.Caption(label.key().toStdString()), Words(label.value())) << label.key().toStdString();
        EXPECT_THAT(page, testing::HasSubstr(Words(label.value())));
    }
    PressKey(*preview, Qt::Key_Escape);
    Settle();
    ShowActive(Frame());
    EXPECT_FALSE(Frame().findChild<QWidget *>("ReportPreview"));
}

void PlayedSurveys::CompareShown(const QJsonObject &show) const
{
    CompareTexts(show["text"].toObject());
    const QJsonObject colours = show["color"].toObject();
    for (auto colour = colours.begin(); colour != colours.end(); ++colour)
        EXPECT_EQ(IsRed(The<QLineEdit>(colour.key())), colour.value().toInt() == 255) << colour.key().toStdString();
    if (show.contains("list")) {
        EXPECT_EQ(Text("lblHogSag"), Words(show["lblHogSag"]));
        EXPECT_EQ(ListCorrection().isChecked(), show["list"].toBool());
    }
    CompareDeductions(show["fgrdDeduction"].toObject());
    CompareResult(show["fgrdFinalResult"].toArray());
    CompareCells("fgrdHDT", 1, 1, show["fgrdHDT"].toArray());
    CompareCells("fgrdIpResult", 0, 1, show["fgrdIpResult"].toArray());
    CompareCells("fgrdResult", 0, 1, show["fgrdResult"].toArray());
    CompareCells("fgrdListCorrection", 1, 0, show["fgrdListCorrection"].toArray());
}

void PlayedSurveys::CompareResult(const QJsonArray &rows) const
{
    for (int row = 0; row < rows.size(); ++row) {
        const QJsonObject expected = rows[row].toObject();
        EXPECT_EQ(Cell("fgrdFinalResult", row, 0), Words(expected["caption"]));
        EXPECT_EQ(Cell("fgrdFinalResult", row, 1), Words(expected["value"])) << Words(expected["caption"]);
        if (expected.contains("color")) {
            EXPECT_EQ(The<Grid>("fgrdFinalResult").IsRed(row, 1), expected["color"].toInt() == 255)
                << Words(expected["caption"]);
        }
    }
}

void PlayedSurveys::CompareCells(const QString &grid, int row, int column, const QJsonArray &rows) const
{
    for (int down = 0; down < rows.size(); ++down) {
        const QJsonArray cells = rows[down].isArray() ? rows[down].toArray() : QJsonArray {rows[down]};
        for (int across = 0; across < cells.size(); ++across)
            EXPECT_EQ(Cell(grid, row + down, column + across), Words(cells[across]))
                << grid.toStdString() << " " << down << "," << across;
    }
}

int PlayedSurveys::RowOf(const QString &item) const
{
    int row = 0;
    while (row < Deductions().rowCount() && Deductions().Cell(row, 0) != mItems[item])
        ++row;
    return row;
}

QCheckBox &PlayedSurveys::ListCorrection() const
{
    for (QCheckBox *box : Window().findChildren<QCheckBox *>())
        if (box->isVisible())
            return *box;
    throw std::logic_error("no list correction box is shown");
}

TEST_P(PlayedSurveys, ShowWhatTheModelWorkedOut)
{
    if (!WorkspaceOf(GetParam()))
        GTEST_SKIP() << "there is no such window yet";
    Play(Case(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Every, PlayedSurveys, testing::ValuesIn(Cases()),
                         [](const auto &survey) { return survey.param; });
} // namespace
