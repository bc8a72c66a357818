#include "tests/support/OffscreenMessages.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

namespace
{
/// The most memory that this program has held, in KiB. What the system tells its parent counts the parent's own before
/// the program was loaded.
long PeakMemory()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        long peak = 0;
        if (word == "VmHWM:" && status >> peak)
            return peak;
    }
    return 0;
}

/// Prints that and ends the program as soon as one of its windows has been painted.
class FirstPaint : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::UpdateRequest && qobject_cast<QWidget *>(watched) != nullptr
            && static_cast<QWidget *>(watched)->isWindow()) {
            QCoreApplication::instance()->removeEventFilter(this);
            static_cast<QWidget *>(watched)->repaint();
            std::cout << PeakMemory() << std::endl;
            std::_Exit(EXIT_SUCCESS);
        }
        return false;
    }
};

void Watch()
{
    DropOffscreenMessages();
    QCoreApplication::instance()->installEventFilter(new FirstPaint);
}
} // namespace

Q_COREAPP_STARTUP_FUNCTION(Watch)
