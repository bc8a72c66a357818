#pragma once

#include "core/numeric/Value.h"

#include <string_view>

class QLineEdit;

/// A text box over a column of the store. Its limit is for typing: a longer text that came into the store otherwise is
/// shown whole, and raises the limit for itself alone.
class StoredBox
{
public:
    StoredBox(QLineEdit &box, std::string_view column);

    [[nodiscard]] QLineEdit &Box() const { return *mBox; }
    [[nodiscard]] std::string_view Column() const { return mColumn; }

    void Show(const Value &stored) const;
    void Clear() const;

private:
    QLineEdit *mBox;
    std::string_view mColumn;
    int mLimit;
};
