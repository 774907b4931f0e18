#pragma once

#include "core/effect.h"
#include "windows/field_controls.h"
#include "windows/field_watch.h"
#include "windows/ok_cancel_form.h"
#include "windows/row_list_panel.h"

#include <utility>

namespace orvane {

/// What the window of one row of a list looks like.
struct RowLook
{
    ControlName Name;
    TextView Title;
    EffectKind Kind; ///< whose help topic F1 opens
    int Letters;     ///< the window is at least as wide as that many of them
    /// Adds a control for each field of the row that the author edits.
    void (*AddFields)(PageBuilder& page);
    ControlName Selected = {}; ///< the box whose text is selected at first; empty for none
};

/// The small window in which the author edits one row of a list: the row's fields stand beside its
/// struct, and `Check`, `Tidy` and `HintsOf` where there are any. A field without a control stays
/// as it is.
template <HasFields Row>
class RowForm : public OkCancelForm
{
public:
    RowForm(const RowLook& look, Workbench& bench, Row row, QWidget* parent)
        : OkCancelForm(look.Name, look.Title,
                       help_topics::firstEffect + static_cast<int>(look.Kind), bench, parent),
          m_row(std::move(row)),
          m_controls(*this)
    {
        setMinimumWidth(look.Letters * fontMetrics().averageCharWidth());
        PageBuilder page = Rows();
        look.AddFields(page);
        AddButtons();
        ShowRow();
        BeginHints();
        if (auto* box = findChild<QLineEdit*>(ToQt(look.Selected)))
            box->selectAll();
    }

    /// The row as OK took it over; until then the one that was handed in.
    const Row& Result() const { return m_row; }

protected:
    void Accept() override
    {
        Row row = Entered();
        if constexpr (requires { Check(row); })
            if (const auto complaint = Check(row))
                return ShowComplaint(*complaint);
        TidyFields(row);
        m_row = std::move(row);
        ShowRow();
        accept();
    }

private:
    Row Entered() const
    {
        Row row = m_row;
        ForEachField(row, [this](const FieldName& name, auto& value) {
            if (m_controls.Has(name.Name))
                m_controls.Read(name.Name, value);
        });
        return row;
    }

    /// Keeps the hints below the fields true while the author changes them.
    void BeginHints()
    {
        if constexpr (requires(const Row& row) { HintsOf(row); }) {
            const auto show = [this] { ShowHints(HintsOf(Entered())); };
            connect(&m_watch, &FieldWatch::Settled, this, show);
            ForEachField(m_row,
                         [this](const FieldName& name, const auto&) { m_watch.Add(name.Name); });
            show();
        }
    }

    void ShowRow()
    {
        ForEachField(m_row, [this](const FieldName& name, const auto& value) {
            m_controls.Write(name.Name, value);
        });
    }

    Row m_row;
    FieldControls m_controls;
    FieldWatch m_watch{*this};
};

/// Opens the window of a row over that of the panel, and adds what the author entered to the end of
/// the list.
template <HasFields Row>
void AddRowByWindow(RowListPanel& panel, const RowLook& look, Workbench& bench)
{
    auto* form = new RowForm<Row>(look, bench, {}, panel.window());
    form->Begin([&panel, form] { panel.AddRow(TextsOf(form->Result())); });
}

/// The selected row of the panel. Expects that one is selected.
template <HasFields Row>
Row SelectedRowOf(const RowListPanel& panel)
{
    Row row;
    SetField(row, panel.SelectedRow());
    return row;
}

/// Opens the window of a row with the selected one, which what the author entered replaces. Expects
/// that a row is selected.
template <HasFields Row>
void EditRowByWindow(RowListPanel& panel, const RowLook& look, Workbench& bench)
{
    auto* form = new RowForm<Row>(look, bench, SelectedRowOf<Row>(panel), panel.window());
    form->Begin([&panel, form] { panel.ChangeSelectedRow(TextsOf(form->Result())); });
}

/// Adds a list of rows that takes the height that is left, with buttons that add, edit, remove and
/// move them; a window that looks like `look` edits one.
template <HasFields Row>
RowListPanel* AddRowList(PageBuilder& page, std::vector<ListColumn> columns, const RowLook& look,
                         Workbench& bench)
{
    auto* rows =
        new RowListPanel({.Columns = std::move(columns),
                          .Words = itemWords,
                          .Buttons = {{RowCommand::Add, "cmdAdd", u"&Add item..."},
                                      {RowCommand::Edit, "cmdEdit", u"&Edit item..."},
                                      {RowCommand::Remove, "cmdRemove", u"&Remove item"},
                                      {RowCommand::MoveUp, "cmdMoveUp", u"Move Up"},
                                      {RowCommand::MoveDown, "cmdMoveDown", u"Move Down"}}},
                         bench.Dialogs);
    page.Fill(rows);
    QObject::connect(rows, &RowListPanel::AddWanted, rows,
                     [=, &bench] { AddRowByWindow<Row>(*rows, look, bench); });
    QObject::connect(rows, &RowListPanel::EditWanted, rows,
                     [=, &bench] { EditRowByWindow<Row>(*rows, look, bench); });
    return rows;
}

} // namespace orvane
