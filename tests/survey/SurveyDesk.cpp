#include "tests/survey/SurveyDesk.h"

#include "frame/platform/Settings.h"
#include "survey_loading/frmDraftSurvey.h"

#include <QComboBox>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTabBar>

const QJsonObject &Surveys()
{
    static const QJsonObject surveys = [] {
        QFile file(QStringLiteral(KEELMARK_SURVEY_DATA "/surveys.json"));
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
    }();
    return surveys;
}

namespace
{
/// Inserts a row whose values are all texts; the store makes numbers of them where it wants some.
void Insert(const std::string &table, const QJsonObject &row, const std::string &key, const std::string &keyValue)
{
    std::string columns = key;
    std::string values = keyValue;
    for (auto field = row.begin(); field != row.end(); ++field) {
        columns += ", " + field.key().toStdString();
        values += ", '" + field.value().toString().toStdString() + "'";
    }
    gConnection->Execute("INSERT INTO " + table + " (" + columns + ") VALUES (" + values + ")");
}
} // namespace

SurveyDesk::SurveyDesk(ChildWindow kind, ChildFactory factory)
    : mKind(kind)
    , mFactory(
          ChildFactoryPort(kind), factory ? std::move(factory) : [] { return new frmDraftSurvey; })
{
    Frame().resize(1366, 768);
    ShowActive(Frame());
}

SurveyDesk::~SurveyDesk()
{
    delete frmMDI::Loaded();
    gOpenChildCount = 0;
    EXPECT_EQ(Forms::Count(), 0);
}

void SurveyDesk::AddShip(const char *name)
{
    Run("INSERT INTO Port (PortName) SELECT 'Richards Bay' WHERE NOT EXISTS (SELECT * FROM Port)");
    const QJsonObject ship = Surveys()["ships"][name].toObject();
    Insert("Ship", ship["particulars"].toObject(), "PortOfRegistry", "(SELECT MAX(PortID) FROM Port)");
    for (const QJsonValue row : ship["hydrostatics"].toArray())
        Insert("HydrostaticDataTable", row.toObject(), "ShipID", "(SELECT MAX(ShipID) FROM Ship)");
}

void SurveyDesk::StoreSurvey()
{
    AddShip();
    Run("INSERT INTO DraftParticulars VALUES (1, 1, 'V1', 1, 'Coal', 341.68513, True)");
    Run("INSERT INTO DraftDetails VALUES (1, 1, 1.015, 0, 7.52, 7.48, 8.03, 7.97, 8.61, 8.59, False, 22441.68513, "
        "'Calm', 202403120630)");
    Run("INSERT INTO DeductionTrans VALUES (1, 2, 350), (1, 3, 120.5)");
    SaveSetting("Draft Survey Loading", "RecordID", "1");
}

void SurveyDesk::StoreDraft(int type, const char *moment, const char *netDisplacement)
{
    Run("INSERT INTO DraftDetails SELECT MAX(DraftID) + 1, 1, 1.015, " + std::to_string(type)
        + ", 8.1, 8.1, 8.35, 8.33, 8.6, 8.6, False, " + netDisplacement + ", '', " + moment + " FROM DraftDetails");
    Run("INSERT INTO DeductionTrans SELECT MAX(DraftID), 2, 470.5 FROM DraftDetails");
}

void SurveyDesk::Open()
{
    OpenChild(mKind);
    Settle();
}

std::string SurveyDesk::Text(const QString &name) const
{
    const QWidget &control = The(name);
    if (qobject_cast<const QLabel *>(&control) && !control.isVisible())
        return "hidden";
    for (const char *property : {"displayText", "currentText", "plainText", "text"})
        if (const QVariant text = control.property(property); text.isValid())
            return text.toString().toStdString();
    return "no text";
}

std::string SurveyDesk::Texts(const QStringList &names) const
{
    QStringList texts;
    for (const QString &name : names)
        texts.append(QString::fromStdString(Text(name)));
    return texts.join(' ').toStdString();
}

std::string SurveyDesk::Cell(const QString &grid, int row, int column) const
{
    return The<Grid>(grid).Cell(row, column).toStdString();
}

std::vector<std::string> SurveyDesk::Items(const QString &list) const
{
    std::vector<std::string> items;
    for (int row = 0; row < The<QComboBox>(list).count(); ++row)
        items.push_back(The<QComboBox>(list).itemText(row).toStdString());
    return items;
}

std::string SurveyDesk::Tab() const
{
    const auto &tabs = The<QTabBar>("sstDraftSurvey");
    return tabs.tabText(tabs.currentIndex()).toStdString();
}

bool SurveyDesk::LaterTabsAreOn() const
{
    const auto &tabs = The<QTabBar>("sstDraftSurvey");
    EXPECT_EQ(tabs.isTabEnabled(1), tabs.isTabEnabled(2));
    return tabs.isTabEnabled(1);
}

void SurveyDesk::Fill(const QString &name, const QString &text)
{
    auto *area = qobject_cast<QPlainTextEdit *>(&The(name));
    Click(area ? *area->viewport() : The(name));
    PressKey(Frame(), Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    Type(Frame(), text);
}

void SurveyDesk::FillMarks(const QString &densityAndMarks)
{
    QStringList fields {"txtDensity",     "txtFwdPort", "txtFwdStbd", "txtMidShipPort",
                        "txtMidshipStbd", "txtAftPort", "txtAftStbd"};
    for (const QString &text : densityAndMarks.split(' '))
        Fill(fields.takeFirst(), text);
}

void SurveyDesk::FillCell(int row, const QString &text)
{
    const QModelIndex cell = Deductions().model()->index(row, 1);
    Deductions().scrollTo(cell);
    Click(*Deductions().viewport(), Deductions().visualRect(cell).center());
    Press(Qt::Key_Delete);
    Type(Frame(), text);
}

void SurveyDesk::GoTo(const char *name)
{
    for (int step = 0; step < 60 && Focus() != name; ++step)
        Press(Qt::Key_Tab);
    ASSERT_EQ(Focus(), name);
}

void SurveyDesk::Pick(const char *list, int row)
{
    GoTo(list);
    for (Press(Qt::Key_Home); row > 0; --row)
        Press(Qt::Key_Down);
}

void SurveyDesk::FillHeader(const QString &voyage)
{
    Pick("dcbShip", 0);
    Press(Qt::Key_Return);
    Type(Frame(), voyage);
    Pick("dcbPort", 0);
    Fill("txtCargo", "Coal");
}

void SurveyDesk::ClickTab(const QString &stage)
{
    auto &tabs = The<QTabBar>("sstDraftSurvey");
    int tab = 0;
    while (tab < tabs.count() && tabs.tabText(tab) != stage)
        ++tab;
    Click(tabs, tabs.tabRect(tab).center());
}

void SurveyDesk::EnterWorked(const QString &voyage)
{
    FillHeader(voyage);
    FillMarks(kWorkedMarks);
    FillCell(0, "350");
    FillCell(1, "120.5");
    Calculate();
}

void SurveyDesk::SaveWell()
{
    ExpectTold("Record/s updated successfully.", [this] { PressSave(); });
}

void SurveyDesk::Tell(const std::string &text, MsgIcon icon, const std::string &caption)
{
    mMessages.Expect({.text = text, .icon = icon, .caption = caption});
}

void SurveyDesk::Prompt(const char *text, MsgAnswer answer, MsgButtons buttons)
{
    mMessages.Expect({.text = text,
                      .icon = std::string(text) == kClosePrompt ? MsgIcon::Question : MsgIcon::Exclamation,
                      .buttons = buttons,
                      .defaultAnswer = buttons == MsgButtons::YesNo ? MsgAnswer::No : MsgAnswer::Yes},
                     answer);
}

void SurveyDesk::ExpectTold(const std::string &text, const std::function<void()> &act, MsgIcon icon,
                            const std::string &caption)
{
    Tell(text, icon, caption);
    act();
    mMessages.ExpectNoneLeft();
}

std::string SurveyDesk::StoredSurveys()
{
    return Ask("SELECT coalesce(group_concat(Line, char(10)), '') FROM (SELECT json_array(RecordID, ShipID, VoyageID, "
               "PortID, Cargo, Constant, IsLoading) AS Line FROM DraftParticulars ORDER BY RecordID)")
        .Text();
}

std::string SurveyDesk::StoredDrafts()
{
    return Ask("SELECT coalesce(group_concat(Line, char(10)), '') FROM (SELECT json_array(DraftID, RecordID, "
               "DraftType, DateTime, SpecificGravity, FwdPortDraft, FwdStbdDraft, MidshipPortDraft, MidshipStbdDraft, "
               "AftPortDraft, AftStbdDraft, ListCorrected, NetDisplacement, substr(Comments, 1, 60)) AS Line "
               "FROM DraftDetails ORDER BY DraftID)")
        .Text();
}

std::string SurveyDesk::StoredDeductions()
{
    return Ask("SELECT coalesce(group_concat(Line, ' '), '') FROM (SELECT DraftID || ':' || ItemID || '=' || "
               "printf('%.15g', Quantity) AS Line FROM DeductionTrans ORDER BY DraftID, ItemID)")
        .Text();
}
