#pragma once

#include <QStringList>
#include <QTableView>

#include <cstdint>
#include <memory>
#include <optional>

class TextTable;
class TextTableModel;

/// Shows a TextTable as it stands, one row current. It reads the cells as they come into sight and keeps none, so a
/// table of any length is shown again at once.
class RowGrid : public QTableView
{
    Q_OBJECT

public:
    explicit RowGrid(QWidget *parent = nullptr);
    ~RowGrid() override;

    /// The table is read from now on; it must outlive the grid or be taken away with setModel(nullptr).
    void SetArray(TextTable &table, const QStringList &captions);
    /// Reads the table again after it has changed. Its first row becomes the current one.
    void ReBind();
    /// Takes the current row out of the table; the row after it becomes the current one.
    void Delete();
    /// The table's row that is current, none where the table has no rows.
    [[nodiscard]] std::optional<std::int32_t> Bookmark() const;
    void Bookmark(std::int32_t row);
    /// Comes back as PostEvent once the present event has ended.
    void PostMsg(int message);

    [[nodiscard]] QSize sizeHint() const override;

signals:
    void MouseDown();
    void DeleteDown();
    void PostEvent(int message);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    TextTable *mTable = nullptr;
    std::unique_ptr<TextTableModel> mModel;
};
