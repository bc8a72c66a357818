#pragma once

#include "core/MsgBox.h"

#include <QPoint>
#include <Qt>

#include <random>
#include <string>

class QWidget;

/// A user who presses and clicks anything in any window, the same for the same seed.
class RandomUser
{
public:
    explicit RandomUser(unsigned seed)
        : mRandom(seed)
    {
    }

    /// Acts that many times from now on, one each time the program waits for its user, also within dialogs; then closes
    /// the main window.
    void Start(int acts);
    [[nodiscard]] int ActsDone() const { return mDone; }
    /// What the last act was done to: the class and name of the window and of the widget, and the child in front.
    [[nodiscard]] const std::string &Last() const { return mLast; }

    /// Caption and first line of the last message box.
    [[nodiscard]] const std::string &Told() const { return mTold; }
    /// A button of the box, any of them.
    [[nodiscard]] MsgAnswer AnswerTo(const Message &message);
    /// True once in that many times.
    [[nodiscard]] bool OnceIn(int times) { return Number(times) == 0; }

private:
    [[nodiscard]] int Number(int below);
    void Step();
    void Act();
    void Note(const char *act, const QWidget &window, const QWidget &widget);
    void PressSomething(QWidget &window);
    void ClickSomething(QWidget &window);
    static void Close();

    std::mt19937 mRandom;
    int mActs = 0;
    int mDone = 0;
    std::string mLast;
    std::string mTold;
};
