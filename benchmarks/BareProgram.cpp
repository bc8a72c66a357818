#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

/// The yardstick of the start: a Qt program with an MDI area, a menu and a toolbar, and nothing else.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QMdiArea);
    QMenu *menu = window.menuBar()->addMenu(QStringLiteral("&File"));
    QToolBar *toolbar = window.addToolBar(QStringLiteral("Tools"));
    for (const char *caption : {"&New", "&Open", "&Save", "&Close"}) {
        toolbar->addAction(QString::fromLatin1(caption));
        menu->addAction(QString::fromLatin1(caption));
    }
    window.statusBar()->showMessage(QStringLiteral("Ready"));
    window.resize(1280, 720);
    window.show();
    return QApplication::exec();
}
