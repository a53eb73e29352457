// CountryGrid: a host's tree grid: countries below regions below continents, each with a unique number.
#pragma once

#include "CsvReader.h"
#include "HookLog.h"

#include "grid/extras/TGWheelScroll.h"
#include "grid/TGTreeGrid.h"
#include "samples/recording/HookRecorder.h"

#include <functional>
#include <map>
#include <vector>

// Gives new items a number of their own, refuses numbers that are in use, and logs every number that was
// repaired. Column 0 is the label, column 1 the number.
class CountryGrid : public samples::HookRecorder<QuorUiCtr::TGTreeGrid>
{
public:
    using TGGridTreeRow = QuorUiCtr::TGGridTreeRow;

    // `log` outlives the grid; `changed` is called after every change that the user makes.
    CountryGrid(LogPane& log, std::function<void()> changed);

    // Shows a table of continent, region, country, label, letters and number, which is ordered by continent
    // and region. Returns false and shows nothing when it has other columns.
    bool Fill(const gallery::CsvTable& table);
    // The continents and whatever else the user has put on the first level.
    std::vector<TGGridTreeRow*> Roots();

protected:
    bool Note(const samples::HookCall& call) const override;
    // Only the label of a group can be edited.
    bool OnBeforeEdit(Cell& cell, bool& commitNewRow) override;
    using HookRecorder::OnBeforeEdit;
    // Refuses a number that is in use.
    bool OnModified(Cell& cell, CString& text) override;
    void OnDataChanged() override;
    void OnInsertRow(Row& row) override;
    void OnEndDeleteRow() override;
    void OnEndClip() override;
    void OnEndPaste() override;
    void OnEndMoveRow() override;

private:
    using Numbers = std::map<Row*, CString>;

    // The numbers of all items.
    Numbers ReadNumbers();
    static void AddNumbers(Row& row, Numbers& numbers);
    void NumberNewItems(Row& row);
    // Runs `repair` and logs what it has changed.
    template <class Repair> void NoteRepairs(const wchar_t* hook, Repair repair);

    QuorUiCtr::TGWheelScroll wheel{*this};
    mutable HookLog log;
    std::function<void()> changed;
};
