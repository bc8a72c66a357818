#include "tests/survey/SurveyDesk.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <set>

namespace
{
using Walk = SurveyDesk;

QChar Mnemonic(QString text)
{
    text.remove("&&");
    const qsizetype mark = text.indexOf('&');
    return mark < 0 ? QChar() : text.at(mark + 1).toLower();
}

bool IsControl(const QWidget *widget)
{
    return widget->objectName().startsWith(QLatin1String("qt_")) == false
        && (qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QComboBox *>(widget)
            || qobject_cast<const QPlainTextEdit *>(widget) || qobject_cast<const QAbstractButton *>(widget)
            || qobject_cast<const Grid *>(widget) || widget->focusPolicy() & Qt::TabFocus);
}

TEST_F(Walk, EveryControlHasANameAndNoLetterServesTwice)
{
    StoreSurvey();
    Open();
    for (const char *stage : {"Daily", "Final", "Initial"}) {
        SCOPED_TRACE(stage);
        ClickTab(stage);
        QString letters;
        std::set<QString> names;
        int controls = 0;
        for (const QWidget *widget : Window().findChildren<QWidget *>()) {
            if (!widget->isVisible())
                continue;
            QString caption;
            if (const auto *label = qobject_cast<const QLabel *>(widget))
                caption = label->text();
            else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
                caption = button->text();
            if (const QChar letter = Mnemonic(caption); !letter.isNull()) {
                EXPECT_FALSE(letters.contains(letter)) << caption.toStdString();
                letters += letter;
            }
            if (!IsControl(widget) || qobject_cast<const QComboBox *>(widget->parentWidget()))
                continue;
            const QString name = widget->accessibleName().isEmpty() ? caption.remove('&') : widget->accessibleName();
            EXPECT_FALSE(name.trimmed().isEmpty()) << widget->objectName().toStdString();
            EXPECT_TRUE(names.insert(name).second) << widget->objectName().toStdString() << ", " << name.toStdString();
            ++controls;
        }
        EXPECT_GT(controls, 40);
    }
}

TEST_F(Walk, TabGoesThroughEveryControlOfTheStageOnceAndBack)
{
    const std::string marks = "txtDensity mbxDate mbxTime txtFwdPort txtFwdStbd txtMidShipPort txtMidshipStbd "
                              "txtAftPort txtAftStbd txtComments ";
    const std::pair<const char *, std::string> stages[] = {
        {"Daily",
         marks
             + "dcbDate cmbTime chkDailyListCorrection cmdCalculate cmdGetDrafts sstDraftSurvey "
               "txtCargoIntendedToLoad cmbDailyDateTime "},
        {"Final", marks + "chkFinalListCorrection cmdCalculate sstDraftSurvey "},
        {"Initial",
         marks
             + "chkInitListCorrection cmdCalculate cmdGetDrafts sstDraftSurvey dcbShip dcbVoyageID dcbPort "
               "txtCargo "},
    };
    StoreSurvey();
    Open();
    for (const auto &[stage, order] : stages) {
        ClickTab(stage);
        std::string forward;
        std::string back;
        do {
            forward += Focus() + " ";
            Press(Qt::Key_Tab);
        } while (Focus() != "txtDensity" && forward.size() < 1000);
        EXPECT_EQ(forward, order);
        do {
            PressKey(Frame(), Qt::Key_Backtab, Qt::ShiftModifier);
            back = Focus() + " " + back;
        } while (Focus() != "txtDensity" && back.size() < 1000);
        EXPECT_EQ(back, order);
    }
}
} // namespace
