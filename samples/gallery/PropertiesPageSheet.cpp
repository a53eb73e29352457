// The settings of a measuring station.
#include "PropertiesPageSheet.h"

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
    Property* group = AddGroup(grid, L"站点 Station", L"站点的名称和联系方式");
    Add(group, L"名称 Name", _variant_t(L"长江水文站"), L"显示在报表标题中的站点名称。");
    group->AddSubItem(new Property(L"编号 Code", _variant_t(L"CJ-0612"), L"两个字母和四位数字，按掩码输入。",
                                   0, L"CC DDDD", L"__-____"));
    Add(group, L"负责人 Contact", _variant_t(L"王小明"), L"出现报警时联系的人。");
    Add(group, L"备注 Remarks", _variant_t(L"枯水期每周人工校核一次水尺读数，汛期每天两次，并记录现场照片。"),
        L"任意文本；列宽不够时停留鼠标可以看到全文。");
    Add(group, L"安装日期 Installed", _variant_t(L"2019-04-18"), L"只读：由安装程序写入。")->AllowEdit(FALSE);
}

void AddNumbers(CMFCPropertyGridCtrlEx& grid)
{
    Property* group = AddGroup(grid, L"采样 Sampling", L"采样的间隔、量程和通道");
    Add(group, L"间隔 Interval", _variant_t(L"15 min"),
        L"带单位的数值：按标题读取数字时，空格后的单位被忽略。");
    Add(group, L"量程 Range", _variant_t(L"12.5 m"), L"传感器能测到的最高水位。");
    Add(group, L"通道数 Channels", _variant_t(4), L"1 到 16，可以用旋钮调整。")
        ->EnableSpinControl(TRUE, 1, 16);
    Add(group, L"零点偏移 Offset", _variant_t(-0.125), L"加到每个读数上的修正值，单位为米。");
    Add(group, L"缓冲区 Buffer", _variant_t(4096U), L"保存在内存中的读数个数。");
    Property* limits = new Property(L"报警限 Limits", 0, TRUE);
    limits->SetDescription(L"下限和上限，可以作为一个文本编辑，也可以展开后分别编辑。");
    Add(limits, L"下限 Low", _variant_t(2), L"低于此水位（米）时报警。");
    Add(limits, L"上限 High", _variant_t(9), L"高于此水位（米）时报警。");
    group->AddSubItem(limits);
}

void AddFlags(CMFCPropertyGridCtrlEx& grid)
{
    Property* group = AddGroup(grid, L"开关 Switches", L"功能的开启和关闭");
    Add(group, L"自动上传 Upload", _variant_t(true), L"采样后立即上传到中心站。");
    Add(group, L"声音报警 Alarm", _variant_t(false), L"超限时鸣响。");
    Add(group, L"写入日志 Logging", _variant_t(true), L"把每个读数写入本地日志。");
    Add(group, L"远程控制 Remote", _variant_t(false), L"未安装通信模块，因此不可用。")->Enable(FALSE);
}

void AddChoices(CMFCPropertyGridCtrlEx& grid)
{
    Property* group = AddGroup(grid, L"显示 Display", L"屏幕和报表的格式");
    grid.AddComboSubItem(group, L"单位 Unit",
                         L"米,<毫米,厘米,米,英尺>[水位的单位；也可以输入列表以外的单位。]");
    grid.AddComboSubItem(group, L"语言 Language",
                         L"简体中文,<简体中文,English,Deutsch,Français>[界面的语言。]");
    grid.AddComboSubItem(group, L"曲线颜色 Colour", L"蓝,<蓝,绿,红,黑>[水位曲线的颜色。]");
    Property* report = new Property(L"报表 Report");
    report->SetDescription(L"组中的组：按标题只能找到第二层，因此其中的属性要展开后编辑。");
    Property* paper = Add(report, L"纸张 Paper", _variant_t(L"A4"), L"只能从列表中选择。");
    for (const wchar_t* size : {L"A3", L"A4", L"Letter"})
        paper->AddOption(size);
    paper->AllowEdit(FALSE);
    Add(report, L"份数 Copies", _variant_t(2), L"打印的份数。")->EnableSpinControl(TRUE, 1, 99);
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
