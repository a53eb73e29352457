// The gallery's Chinese texts.
#include "LanguageTexts.h"

#include <algorithm>
#include <cwchar>
#include <iterator>

namespace
{

constexpr Translation Texts[] = {
    // The window and its menu.
    {L"QuorUiCtrl gallery", L"QuorUiCtrl 控件展示"},
    {L"Notifications", L"通知记录"},
    {L"&File", L"文件(&F)"},
    {L"&Open CSV table...\tCtrl+O", L"打开 CSV 表格(&O)...\tCtrl+O"},
    {L"E&xit", L"退出(&X)"},
    {L"&Edit", L"编辑(&E)"},
    {L"&Undo\tCtrl+Z", L"撤销(&U)\tCtrl+Z"},
    {L"&Redo\tCtrl+Y", L"重做(&R)\tCtrl+Y"},
    {L"Cu&t\tCtrl+X", L"剪切(&T)\tCtrl+X"},
    {L"&Copy\tCtrl+C", L"复制(&C)\tCtrl+C"},
    {L"&Paste\tCtrl+V", L"粘贴(&P)\tCtrl+V"},
    {L"&Empty\tDel", L"清空(&E)\tDel"},
    {L"Fill &down\tCtrl+D", L"向下填充(&D)\tCtrl+D"},
    {L"Fill r&ight\tCtrl+R", L"向右填充(&I)\tCtrl+R"},
    {L"Continue the &series", L"延续序列(&S)"},
    {L"Undo", L"撤销"},
    {L"Redo", L"重做"},
    {L"(at the beginning)", L"（开始时）"},
    {L"&View", L"查看(&V)"},
    {L"&Clear notifications", L"清空通知记录(&C)"},
    {L"&Language", L"语言(&L)"},
    {L"&Help", L"帮助(&H)"},
    {L"&About\tF1", L"关于(&A)\tF1"},
    {L"&Save CSV table...\tCtrl+S", L"保存 CSV 表格(&S)...\tCtrl+S"},
    {L"&Source of the page\tCtrl+U", L"本页源代码(&S)\tCtrl+U"},
    {L"About", L"关于"},
    {L"Controls for programs written on MFC: editable grid, tree grid, drag tree, property grid, report "
     L"list.",
     L"用于 MFC 程序的控件：可编辑表格、树形表格、拖放树、属性表、列表。"},
    {L"Gallery %s\nLibrary %s\nWindows %s\nBuilt with %s", L"展示程序 %s\n控件库 %s\nWindows %s\n编译器 %s"},
    {L"Opening %s", L"正在打开 %s"},
    {L"Saving %s", L"正在保存 %s"},
    {L"%s is not saved:\n%s", L"未保存 %s：\n%s"},
    {L"Stopped; the file is as it was.", L"已停止，文件未改变。"},
    {L"The file cannot be written.", L"无法写入文件。"},
    {L"These pages have changes that are not saved:", L"以下各页的更改尚未保存："},
    {L"The cell that is being edited keeps its old text.", L"正在编辑的单元格将保留原来的文字。"},
    {L"Close the gallery?", L"关闭程序吗？"},
    {L" of %d, then stopped", L"（共 %d 行，已停止）"},
    {L"Rows selected: %ld", L"已选 %ld 行"},
    {L"Columns selected: %ld", L"已选 %ld 列"},
    {L"%ld rows, %ld columns", L"%ld 行 %ld 列"},
    {L"%d items", L"%d 项"},
    {L"%d groups", L"%d 组"},
    {L"CSV files (*.csv)", L"CSV 文件 (*.csv)"},
    {L"All files (*.*)", L"所有文件 (*.*)"},
    {L"The pages start anew in the other language, and what was changed in them is lost. Go on?",
     L"换语言后各页重新开始，所做的更改会丢失。继续吗？"},
    {L"%s cannot be shown:\n%s", L"无法显示 %s：\n%s"},

    // The names of the pages.
    {L"Grid", L"表格"},
    {L"Tree rows", L"树形行"},
    {L"Tree grid", L"树形表格"},
    {L"Sheet", L"工作表"},
    {L"Properties", L"属性"},
    {L"Drag tree", L"拖放树"},
    {L"Report list", L"列表"},

    // The grid pages.
    {L"Fit &last column", L"末列填满(&L)"},
    {L"Log &painting", L"记录绘制(&P)"},
    {L"&Elements", L"元素(&E)"},
    {L"A &million rows", L"一百万行(&M)"},
    {L"Fit &columns", L"列宽适应(&C)"},
    {L"Known", L"已知"},
    {L"%d elements", L"%d 种元素"},
    {L"%ld rows", L"%ld 行"},
    {L"Making a million rows", L"正在生成一百万行"},
    {L"No rows", L"没有行"},
    {L"F&old all", L"全部折叠(&O)"},
    {L"&Unfold all", L"全部展开(&U)"},
    {L"%s: %d rows", L"%s：%d 行"},
    {L", %d lines with errors, see below", L"，%d 行有错，见下方记录"},
    {L"FitLastCol: not needed, or not possible", L"FitLastCol: 不需要或无法调整"},
    {L"%d elements on three levels", L"%d 种元素，三级"},
    {L"The table lacks the columns of the groups", L"数据表缺少分组列"},
    {L"Styles", L"样式"},
    {L"Read only", L"只读"},
    {L"Fixed number of rows", L"行数固定"},
    {L"Fixed number of columns", L"列数固定"},
    {L"Fixed row order", L"行位置固定"},
    {L"Fixed column order", L"列位置固定"},
    {L"Fixed column widths", L"列宽固定"},
    {L"Single row selection", L"只选一行"},
    {L"No new-row line", L"无新建行"},
    {L"No pasting", L"禁止粘贴"},
    {L"No default menus", L"无默认菜单"},
    {L"Sorting", L"允许排序"},
    {L"Sorting by caption", L"按标签排序"},
    {L"Flat headers", L"平面标题"},
    {L"Tree lines", L"树连接线"},
    {L"Row headers", L"行标题"},
    {L"Column headers", L"列标题"},
    {L"Keys", L"按键"},
    {L"Arrows Tab Enter Esc edit, move\n"
     L"PgUp PgDn Home scroll\n"
     L"Ins insert (Ctrl: tree)  Del delete\n"
     L"N new (Ctrl: tree)  T new child\n"
     L"C copy  X cut  V paste\n"
     L"Ctrl+V paste as child\n"
     L"A all  R ascending  U descending\n"
     L"F6 next pane",
     L"方向键 Tab Enter Esc 编辑与移动\n"
     L"PgUp PgDn Home 滚动\n"
     L"Ins 插入 (Ctrl 树)  Del 删除\n"
     L"N 新建 (Ctrl 树)  T 新建子行\n"
     L"C 复制  X 剪切  V 粘贴\n"
     L"Ctrl+V 粘贴为子行\n"
     L"A 全选  R 升序  U 降序\n"
     L"F6 下一窗格"},
    {L"Row %ld, column %ld", L"第 %ld 行 第 %ld 列"},
    {L"Row %ld", L"第 %ld 行"},
    {L"Column %ld: %s", L"第 %ld 列：%s"},
    {L"Edit in a dialog", L"在对话框中编辑"},
    {L"Double click: all", L"双击全选"},
    {L"OK", L"确定"},
    {L"Cancel", L"取消"},
    {L"refused", L"拒绝"},

    // The kinds of editors.
    {L"read only", L"只读"},
    {L"spin", L"数字微调"},
    {L"list", L"下拉列表"},
    {L"combo box", L"可编辑组合框"},
    {L"with a button", L"带按钮"},
    {L"text", L"文本"},

    // The tree grid.
    {L"Insert row (Ins)", L"插入行(Ins)"},
    {L"Insert tree", L"插入树"},
    {L"Child (T)", L"追加子行(T)"},
    {L"Delete (Del)", L"删除(Del)"},
    {L"Copy (C)", L"复制(C)"},
    {L"Cut (X)", L"剪切(X)"},
    {L"Paste (V)", L"粘贴(V)"},
    {L"Paste as child", L"粘贴为子行"},
    {L"Fold all", L"全部折叠"},
    {L"Unfold all", L"全部展开"},
    {L"Up (R)", L"升序(R)"},
    {L"Down (U)", L"降序(U)"},
    {L"Find", L"查找"},
    {L"Number", L"编号"},
    {L"Text", L"文字"},
    {L"Japan", L"日本"},
    {L"OnBeforeEdit  refused: only the name of a group can be changed", L"OnBeforeEdit  拒绝：组只能改名称"},
    {L"OnModified  refused: \"%s\" is empty, 0 or in use", L"OnModified  拒绝：“%s”为空、为 0 或已被占用"},
    {L"OnDataChanged  only sets IsModified(), the parent is not told",
     L"OnDataChanged  只设置 IsModified()，不通知父窗口"},
    {L"%s  number repaired: %s \"%s\" → \"%s\"", L"%s  编号修复：%s “%s” → “%s”"},
    {L"countries.csv: unexpected columns", L"countries.csv：列数不符"},

    // The property page.
    {L"Appearance", L"外观"},
    {L"&Alphabetic", L"按字母排序(&A)"},
    {L"&Description", L"说明区(&D)"},
    {L"&Mark modified", L"标记已修改(&M)"},
    {L"By title", L"按标题读写"},
    {L"Title", L"标题"},
    {L"Value", L"值"},
    {L"&Read", L"读取(&R)"},
    {L"Write &text", L"写文本(&T)"},
    {L"Write &integer", L"写整数(&I)"},
    {L"Write &number", L"写小数(&N)"},
    {L"Write &flag", L"写开关(&F)"},
    {L"&Select this option", L"设为第几个选项(&S)"},
    {L"Property", L"属性"},
    {L"Yes", L"是"},
    {L"No", L"否"},
    {L"%s = %d\r\ntext \"%s\"\r\nnumber %g\r\noption %d", L"%s = %d\r\n文本 \"%s\"\r\n数字 %g\r\n选项 %d"},

    // The drag tree.
    {L"&New folder", L"新建文件夹(&N)"},
    {L"&Delete", L"删除(&D)"},
    {L"&Rename", L"重命名(&R)"},
    {L"Move &up", L"上移(&U)"},
    {L"Move do&wn", L"下移(&W)"},
    {L"Uni&que names", L"名称唯一(&Q)"},
    {L"Re&fuse drops", L"拒绝拖放(&F)"},
    {L"Favourites", L"收藏"},
    {L"%d countries", L"%d 个国家和地区"},
    {L"(a deleted item)", L"（已删除的项）"},
    {L"  at ", L"  位置 "},
    {L" (refused)", L"（已拒绝）"},

    // The report list.
    {L"&Lines of text", L"多行编辑(&L)"},
    {L"Select all", L"单击全选"},
    {L"Plain edit", L"普通编辑框"},
    {L"Click the current cell again or press F2 to edit; ← and → move; Enter keeps, Esc drops",
     L"再次单击当前单元格或按 F2 编辑；←→ 移动；Enter 确定，Esc 取消"},
    {L"PositionControl: the column is too narrow to edit", L"PositionControl: 列太窄，不编辑"},
    {L"First line\r\nSecond line\r\nThird line", L"第一行\r\n第二行\r\n第三行"},
    {L"A text that is longer than its cell: the editor grows with it",
     L"输入的文字比单元格长，编辑框随之变宽"},
    {L"%s  row %d  column %d %s  ", L"%s  行 %d  列 %d %s  "},
    {L"text \"%s\" (%d)", L"文本 “%s” (%d)"},
    {L"cancelled", L"已取消"},

    // The settings of the measuring station.
    {L"Station", L"站点"},
    {L"Name of the station, and whom to ask", L"站点的名称和联系方式"},
    {L"Name", L"名称"},
    {L"Yangtze gauging station", L"长江水文站"},
    {L"The name of the station in the titles of reports.", L"显示在报表标题中的站点名称。"},
    {L"Code", L"编号"},
    {L"Two letters and four digits, typed into a mask.", L"两个字母和四位数字，按掩码输入。"},
    {L"Contact", L"负责人"},
    {L"Wang Xiaoming", L"王小明"},
    {L"Whom to call when there is an alarm.", L"出现报警时联系的人。"},
    {L"Remarks", L"备注"},
    {L"At low water the gauge is checked by hand once a week, at high water twice a day, with photographs.",
     L"枯水期每周人工校核一次水尺读数，汛期每天两次，并记录现场照片。"},
    {L"Any text; where the column is too narrow the mouse shows all of it.",
     L"任意文本；列宽不够时停留鼠标可以看到全文。"},
    {L"Installed", L"安装日期"},
    {L"Read only: the installation writes it.", L"只读：由安装程序写入。"},
    {L"Sampling", L"采样"},
    {L"Interval, range and channels of the sampling", L"采样的间隔、量程和通道"},
    {L"Interval", L"间隔"},
    {L"A number with a unit: what follows the blank is ignored when the number is read by title.",
     L"带单位的数值：按标题读取数字时，空格后的单位被忽略。"},
    {L"Range", L"量程"},
    {L"The highest level that the sensor measures.", L"传感器能测到的最高水位。"},
    {L"Channels", L"通道数"},
    {L"1 to 16, with spin buttons.", L"1 到 16，可以用旋钮调整。"},
    {L"Offset", L"零点偏移"},
    {L"What is added to each reading, in metres.", L"加到每个读数上的修正值，单位为米。"},
    {L"Buffer", L"缓冲区"},
    {L"How many readings are kept in memory.", L"保存在内存中的读数个数。"},
    {L"Limits", L"报警限"},
    {L"Low and high limit, edited as one text or, unfolded, one by one.",
     L"下限和上限，可以作为一个文本编辑，也可以展开后分别编辑。"},
    {L"Low", L"下限"},
    {L"Alarm below this level in metres.", L"低于此水位（米）时报警。"},
    {L"High", L"上限"},
    {L"Alarm above this level in metres.", L"高于此水位（米）时报警。"},
    {L"Switches", L"开关"},
    {L"What is on and what is off", L"功能的开启和关闭"},
    {L"Upload", L"自动上传"},
    {L"Sends each sample to the centre at once.", L"采样后立即上传到中心站。"},
    {L"Alarm", L"声音报警"},
    {L"Sounds beyond the limits.", L"超限时鸣响。"},
    {L"Logging", L"写入日志"},
    {L"Writes each reading into the local log.", L"把每个读数写入本地日志。"},
    {L"Remote", L"远程控制"},
    {L"Not available: there is no communication module.", L"未安装通信模块，因此不可用。"},
    {L"Display", L"显示"},
    {L"How screens and reports look", L"屏幕和报表的格式"},
    {L"Unit", L"单位"},
    {L"m,<mm,cm,m,ft>[The unit of levels; others than those of the list can be typed.]",
     L"米,<毫米,厘米,米,英尺>[水位的单位；也可以输入列表以外的单位。]"},
    {L"Language", L"语言"},
    {L"English,<简体中文,English,Deutsch,Français>[The language of the screens.]",
     L"简体中文,<简体中文,English,Deutsch,Français>[界面的语言。]"},
    {L"Colour", L"曲线颜色"},
    {L"blue,<blue,green,red,black>[The colour of the curve.]", L"蓝,<蓝,绿,红,黑>[水位曲线的颜色。]"},
    {L"Report", L"报表"},
    {L"A group in a group: titles are found on the second level only, so these are edited by hand.",
     L"组中的组：按标题只能找到第二层，因此其中的属性要展开后编辑。"},
    {L"Paper", L"纸张"},
    {L"Chosen from the list only.", L"只能从列表中选择。"},
    {L"Copies", L"份数"},
    {L"How many copies are printed.", L"打印的份数。"},
};

} // namespace

const Translation* Translations(std::size_t& count)
{
    count = std::size(Texts);
    return Texts;
}

const wchar_t* ChineseText(const wchar_t* english)
{
    const auto found = std::find_if(std::begin(Texts), std::end(Texts), [english](const Translation& text) {
        return std::wcscmp(text.english, english) == 0;
    });
    return found == std::end(Texts) ? nullptr : found->chinese;
}
