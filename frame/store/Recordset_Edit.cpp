#include "frame/store/RecordsetRows.h"

#include <sqlite3.h>

namespace
{
std::string Quoted(const std::string &name)
{
    std::string quoted = "\"";
    for (const char letter : name)
        quoted.append(letter == '"' ? 2 : 1, letter);
    return quoted + '"';
}

void Bind(const Statement &statement, int at, const Cell &cell, const RowTable &table)
{
    switch (cell.kind) {
    case Cell::Kind::Null:
        break; // an unbound parameter is NULL
    case Cell::Kind::Whole:
        sqlite3_bind_int64(statement.Handle(), at, cell.whole);
        break;
    case Cell::Kind::Real:
        sqlite3_bind_double(statement.Handle(), at, cell.real);
        break;
    case Cell::Kind::Text: {
        const std::string_view text = table.TextOf(cell);
        sqlite3_bind_text(statement.Handle(), at, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
    }
    }
}

/// Runs a statement with these cells as its parameters.
void Run(const std::string &sql, const std::vector<Cell> &parameters, const RowTable &table)
{
    Statement statement(OpenHandle(), sql);
    for (std::size_t i = 0; i < parameters.size(); ++i)
        Bind(statement, static_cast<int>(i) + 1, parameters[i], table);
    statement.Step();
}

/// The columns that were given a value, one after another with a comma between, and the values.
std::pair<std::string, std::vector<Cell>> Changed(const Recordset::Rows &rows, const WriteTarget &target,
                                                  std::size_t row, const char *behindEach)
{
    std::string names;
    std::vector<Cell> values;
    for (std::size_t column = 0; column < rows.changed.size(); ++column) {
        if (!rows.changed[column])
            continue;
        names += (values.empty() ? "" : ", ") + Quoted(target.columns[column]) + behindEach;
        values.push_back(rows.table.At(column, row));
    }
    return {names, values};
}

void Insert(Recordset::Rows &rows, const WriteTarget &target, std::size_t row)
{
    const auto [names, values] = Changed(rows, target, row, "");
    std::string marks;
    for (std::size_t i = 0; i < values.size(); ++i)
        marks += i == 0 ? "?" : ", ?";
    const std::string what = values.empty() ? "DEFAULT VALUES" : '(' + names + ") VALUES (" + marks + ')';
    Run("INSERT INTO " + Quoted(target.table) + ' ' + what, values, rows.table);
    Cell &key = rows.table.At(target.keyColumn, row);
    key.whole = sqlite3_last_insert_rowid(OpenHandle());
    key.kind = Cell::Kind::Whole;
}

void Change(const Recordset::Rows &rows, const WriteTarget &target, std::size_t row)
{
    auto [settings, values] = Changed(rows, target, row, " = ?");
    if (values.empty())
        return;
    values.push_back(rows.before[target.keyColumn]);
    Run("UPDATE " + Quoted(target.table) + " SET " + settings + " WHERE " + Quoted(target.columns[target.keyColumn])
            + " = ?",
        values, rows.table);
    if (sqlite3_changes(OpenHandle()) == 0)
        throw RuntimeError(StoreError::StatementFailed, "The row is no longer in the store.");
}

std::string TextOrEmpty(const char *text)
{
    return text == nullptr ? std::string() : text;
}

/// Whether the column is the table's key of whole numbers.
bool IsKey(const Statement &select, const std::string &table, const std::string &column)
{
    const char *type = nullptr;
    int isKey = 0;
    sqlite3_table_column_metadata(sqlite3_db_handle(select.Handle()), nullptr, table.c_str(), column.c_str(), &type,
                                  nullptr, nullptr, &isKey, nullptr);
    return isKey != 0 && TextOrEmpty(type) == "INTEGER";
}
} // namespace

std::optional<WriteTarget> FindWriteTarget(const Statement &select)
{
    WriteTarget target;
    for (int i = 0; i < sqlite3_column_count(select.Handle()); ++i) {
        const std::string table = TextOrEmpty(sqlite3_column_table_name(select.Handle(), i));
        target.columns.push_back(TextOrEmpty(sqlite3_column_origin_name(select.Handle(), i)));
        if (table.empty())
            continue;
        if (target.table.empty())
            target.table = table;
        if (target.table != table)
            return std::nullopt;
        if (IsKey(select, table, target.columns.back())) {
            if (target.keyColumn != RowTable::kNone)
                return std::nullopt;
            target.keyColumn = static_cast<std::size_t>(i);
        }
    }
    if (target.keyColumn == RowTable::kNone)
        return std::nullopt;
    return target;
}

void Recordset::Rows::BeginEdit(Edit kind)
{
    edit = kind;
    changed.assign(table.ColumnCount(), false);
    placeBefore = place;
    goneBefore = gone;
    if (kind == Edit::Add) {
        order.push_back(static_cast<std::uint32_t>(table.AppendRow()));
        StandAt(Size() - 1);
        return;
    }
    before.clear();
    for (std::size_t column = 0; column < table.ColumnCount(); ++column)
        before.push_back(table.At(column, CurrentRow()));
}

void Recordset::Rows::Update()
{
    if (edit == Edit::None)
        return;
    if (target && edit == Edit::Add)
        Insert(*this, *target, CurrentRow());
    else if (target)
        Change(*this, *target, CurrentRow());
    edit = Edit::None;
}

void Recordset::Rows::CancelUpdate()
{
    if (edit == Edit::Change)
        for (std::size_t column = 0; column < table.ColumnCount(); ++column)
            table.At(column, CurrentRow()) = before[column];
    if (edit == Edit::Add) {
        order.pop_back();
        table.RemoveLastRow();
        place = placeBefore;
        gone = goneBefore;
    }
    edit = Edit::None;
}

void Recordset::Rows::Delete()
{
    const bool neverKept = edit == Edit::Add;
    CancelUpdate();
    if (neverKept)
        return;
    const std::size_t row = CurrentRow();
    if (target)
        Run("DELETE FROM " + Quoted(target->table) + " WHERE " + Quoted(target->columns[target->keyColumn]) + " = ?",
            {table.At(target->keyColumn, row)}, table);
    deleted.resize(table.RowCount());
    deleted[row] = true;
    order.erase(order.begin() + place);
    gone = true;
}

Recordset::Rows &Recordset::Updatable() const
{
    Rows &rows = Opened();
    if (!rows.IsUpdatable())
        throw RuntimeError(StoreError::ReadOnly, "The rows of this recordset cannot be changed.");
    return rows;
}

void Recordset::Fields(std::string_view column, const Value &value)
{
    Rows &rows = Updatable();
    const std::size_t row = rows.CurrentRow();
    const std::size_t index = rows.table.RequireColumn(column);
    if (rows.target && rows.target->columns[index].empty())
        throw RuntimeError(StoreError::ReadOnly, "The column is calculated and cannot be changed.");
    const Cell cell = rows.table.MakeCell(index, value);
    if (rows.edit == Rows::Edit::None)
        rows.BeginEdit(Rows::Edit::Change);
    rows.table.At(index, row) = cell;
    rows.changed[index] = true;
}

void Recordset::AddNew()
{
    Rows &rows = Updatable();
    rows.Update();
    rows.BeginEdit(Rows::Edit::Add);
}

void Recordset::Update()
{
    Opened().Update();
}

void Recordset::CancelUpdate()
{
    Opened().CancelUpdate();
}

RecordEdit Recordset::EditMode() const
{
    return Opened().edit;
}

void Recordset::Delete(int affected)
{
    if (affected != 1)
        throw RuntimeError(StoreError::BadArgument, "Only the current row can be deleted.");
    Updatable().Delete();
}
