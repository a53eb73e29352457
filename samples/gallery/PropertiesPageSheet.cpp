// The settings of a measuring station.
#include "PropertiesPageSheet.h"

#include "Language.h"

namespace
{

using Property = CMFCPropertyGridProperty;

Property* AddGroup(CMFCPropertyGridCtrlEx& grid, const wchar_t* name, const wchar_t* description)
{
    Property* group = new Property(name);
    group->SetDescription(description);
    grid.AddProperty(group);
    return group;
}

Property* Add(Property* group, const wchar_t* name, const _variant_t& value, const wchar_t* description)
{
    Property* property = new Property(name, value, description);
    group->AddSubItem(property);
    return property;
}

void AddTexts(CMFCPropertyGridCtrlEx& grid)
{
    Property* group = AddGroup(grid, Tr(L"Station"), Tr(L"Name of the station, and whom to ask"));
    Add(group, Tr(L"Name"), _variant_t(Tr(L"Yangtze gauging station")),
        Tr(L"The name of the station in the titles of reports."));
    group->AddSubItem(new Property(Tr(L"Code"), _variant_t(L"CJ-0612"),
                                   Tr(L"Two letters and four digits, typed into a mask."), 0, L"CC DDDD",
                                   L"__-____"));
    Add(group, Tr(L"Contact"), _variant_t(Tr(L"Wang Xiaoming")), Tr(L"Whom to call when there is an alarm."));
    Add(group, Tr(L"Remarks"),
        _variant_t(Tr(L"At low water the gauge is checked by hand once a week, at high water twice a day, "
                      L"with photographs.")),
        Tr(L"Any text; where the column is too narrow the mouse shows all of it."));
    Add(group, Tr(L"Installed"), _variant_t(L"2019-04-18"), Tr(L"Read only: the installation writes it."))
        ->AllowEdit(FALSE);
}

void AddNumbers(CMFCPropertyGridCtrlEx& grid)
{
    Property* group = AddGroup(grid, Tr(L"Sampling"), Tr(L"Interval, range and channels of the sampling"));
    Add(group, Tr(L"Interval"), _variant_t(L"15 min"),
        Tr(L"A number with a unit: what follows the blank is ignored when the number is read by title."));
    Add(group, Tr(L"Range"), _variant_t(L"12.5 m"), Tr(L"The highest level that the sensor measures."));
    Add(group, Tr(L"Channels"), _variant_t(4), Tr(L"1 to 16, with spin buttons."))
        ->EnableSpinControl(TRUE, 1, 16);
    Add(group, Tr(L"Offset"), _variant_t(-0.125), Tr(L"What is added to each reading, in metres."));
    Add(group, Tr(L"Buffer"), _variant_t(4096U), Tr(L"How many readings are kept in memory."));
    Property* limits = new Property(Tr(L"Limits"), 0, TRUE);
    limits->SetDescription(Tr(L"Low and high limit, edited as one text or, unfolded, one by one."));
    Add(limits, Tr(L"Low"), _variant_t(2), Tr(L"Alarm below this level in metres."));
    Add(limits, Tr(L"High"), _variant_t(9), Tr(L"Alarm above this level in metres."));
    group->AddSubItem(limits);
}

void AddFlags(CMFCPropertyGridCtrlEx& grid)
{
    Property* group = AddGroup(grid, Tr(L"Switches"), Tr(L"What is on and what is off"));
    Add(group, Tr(L"Upload"), _variant_t(true), Tr(L"Sends each sample to the centre at once."));
    Add(group, Tr(L"Alarm"), _variant_t(false), Tr(L"Sounds beyond the limits."));
    Add(group, Tr(L"Logging"), _variant_t(true), Tr(L"Writes each reading into the local log."));
    Add(group, Tr(L"Remote"), _variant_t(false), Tr(L"Not available: there is no communication module."))
        ->Enable(FALSE);
}

void AddChoices(CMFCPropertyGridCtrlEx& grid)
{
    Property* group = AddGroup(grid, Tr(L"Display"), Tr(L"How screens and reports look"));
    grid.AddComboSubItem(
        group, Tr(L"Unit"),
        Tr(L"m,<mm,cm,m,ft>[The unit of levels; others than those of the list can be typed.]"));
    grid.AddComboSubItem(group, Tr(L"Language"),
                         Tr(L"English,<简体中文,English,Deutsch,Français>[The language of the screens.]"));
    grid.AddComboSubItem(group, Tr(L"Colour"), Tr(L"blue,<blue,green,red,black>[The colour of the curve.]"));
    Property* report = new Property(Tr(L"Report"));
    report->SetDescription(
        Tr(L"A group in a group: titles are found on the second level only, so these are edited by hand."));
    Property* paper = Add(report, Tr(L"Paper"), _variant_t(L"A4"), Tr(L"Chosen from the list only."));
    for (const wchar_t* size : {L"A3", L"A4", L"Letter"})
        paper->AddOption(size);
    paper->AllowEdit(FALSE);
    Add(report, Tr(L"Copies"), _variant_t(2), Tr(L"How many copies are printed."))
        ->EnableSpinControl(TRUE, 1, 99);
    group->AddSubItem(report);
}

} // namespace

void FillSettingsSheet(CMFCPropertyGridCtrlEx& grid)
{
    AddTexts(grid);
    AddNumbers(grid);
    AddFlags(grid);
    AddChoices(grid);
}
