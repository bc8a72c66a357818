#pragma once

#include <QLineEdit>

/// A box with fixed separators, such as "99-99-9999", and "_" where nothing has been typed.
class MaskedBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit MaskedBox(QWidget *parent = nullptr);

    /// 9 stands for a digit; every other character is a separator.
    void SetMask(const QString &mask);
    /// The text with its separators and prompts, as it stands in the box.
    [[nodiscard]] QString Text() const;
    /// A text of the mask's shape, prompts among it, or just its digits; any other leaves the box with prompts.
    void SetText(const QString &text);

private:
    QString mMask;
};
