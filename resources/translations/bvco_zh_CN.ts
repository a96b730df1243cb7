<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
    <context>
        <name>bvco</name>
        <message>
            <source>Color Options</source>
            <translation>色彩选项</translation>
        </message>
        <message>
            <source>Advanced Color Options</source>
            <translation>高级色彩选项</translation>
        </message>
        <message>
            <source>Hide Advanced Options</source>
            <translation>隐藏高级选项</translation>
        </message>
        <message>
            <source>Management Profile</source>
            <extracomment>Manage Profiles…</extracomment>
            <translation>管理配置文件…</translation>
        </message>
        <message>
            <source>Download Manager</source>
            <translation>下载管理器</translation>
        </message>
        <message>
            <source>Quick Color</source>
            <translation>快速色彩</translation>
        </message>
        <message>
            <source>Quick Color:</source>
            <translation>快速色彩：</translation>
        </message>
        <message>
            <source>Brightness</source>
            <translation>亮度</translation>
        </message>
        <message>
            <source>Brightness:</source>
            <translation>亮度：</translation>
        </message>
        <message>
            <source>Color as Grayscale</source>
            <translation>彩色转灰度</translation>
        </message>
        <message>
            <source>Color Separation</source>
            <translation>分色</translation>
        </message>
        <message>
            <source>EconoMode</source>
            <extracomment>Economy Print</extracomment>
            <translation>经济打印</translation>
        </message>
        <message>
            <source>EdgeType</source>
            <extracomment>Edge Strength</extracomment>
            <translation>边缘强度</translation>
        </message>
        <message>
            <source>EdgeType:</source>
            <extracomment>Edge Strength:</extracomment>
            <translation>边缘强度：</translation>
        </message>
        <message>
            <source>AutoTrapping</source>
            <extracomment>Auto Trapping</extracomment>
            <translation>自动陷印</translation>
        </message>
        <message>
            <source>BlackOverprint</source>
            <extracomment>Black Overprint</extracomment>
            <translation>黑色叠印</translation>
        </message>
        <message>
            <source>BlackOverprint:</source>
            <extracomment>Black Overprint:</extracomment>
            <translation>黑色叠印：</translation>
        </message>
        <message>
            <source>Image</source>
            <translation>图像</translation>
        </message>
        <message>
            <source>Text</source>
            <translation>文字</translation>
        </message>
        <message>
            <source>Graphics</source>
            <translation>图形</translation>
        </message>
        <message>
            <source>Simulation</source>
            <translation>模拟</translation>
        </message>
        <message>
            <source>RGB Source:</source>
            <translation>RGB 源：</translation>
        </message>
        <message>
            <source>RGB Intent:</source>
            <translation>RGB 渲染意图：</translation>
        </message>
        <message>
            <source>RGB Gray Treatment:</source>
            <translation>RGB 灰色处理：</translation>
        </message>
        <message>
            <source>Destination Profile:</source>
            <translation>目标配置文件：</translation>
        </message>
        <message>
            <source>Halftone:</source>
            <translation>半色调：</translation>
        </message>
        <message>
            <source>EdgeEnhance:</source>
            <extracomment>Edge Enhancement:</extracomment>
            <translation>边缘增强：</translation>
        </message>
        <message>
            <source>Simulation Profile:</source>
            <translation>模拟配置文件：</translation>
        </message>
        <message>
            <source>Match Paper Color:</source>
            <translation>匹配纸张颜色：</translation>
        </message>
        <message>
            <source>CMYK Gray Treatment:</source>
            <translation>CMYK 灰色处理：</translation>
        </message>
        <message>
            <source>Image RGB Source</source>
            <translation>图像 RGB 源</translation>
        </message>
        <message>
            <source>Image RGB Intent</source>
            <translation>图像 RGB 渲染意图</translation>
        </message>
        <message>
            <source>Image RGB Gray Treatment</source>
            <translation>图像 RGB 灰色处理</translation>
        </message>
        <message>
            <source>Image Destination Profile</source>
            <translation>图像目标配置文件</translation>
        </message>
        <message>
            <source>Image Halftone</source>
            <translation>图像半色调</translation>
        </message>
        <message>
            <source>Image EdgeEnhance</source>
            <extracomment>Image Edge Enhancement</extracomment>
            <translation>图像边缘增强</translation>
        </message>
        <message>
            <source>Text RGB Source</source>
            <translation>文字 RGB 源</translation>
        </message>
        <message>
            <source>Text RGB Intent</source>
            <translation>文字 RGB 渲染意图</translation>
        </message>
        <message>
            <source>Text RGB Gray Treatment</source>
            <translation>文字 RGB 灰色处理</translation>
        </message>
        <message>
            <source>Text Destination Profile</source>
            <translation>文字目标配置文件</translation>
        </message>
        <message>
            <source>Text Halftone</source>
            <translation>文字半色调</translation>
        </message>
        <message>
            <source>Text EdgeEnhance</source>
            <extracomment>Text Edge Enhancement</extracomment>
            <translation>文字边缘增强</translation>
        </message>
        <message>
            <source>Graphics RGB Source</source>
            <translation>图形 RGB 源</translation>
        </message>
        <message>
            <source>Graphics RGB Intent</source>
            <translation>图形 RGB 渲染意图</translation>
        </message>
        <message>
            <source>Graphics RGB Gray Treatment</source>
            <translation>图形 RGB 灰色处理</translation>
        </message>
        <message>
            <source>Graphics Destination Profile</source>
            <translation>图形目标配置文件</translation>
        </message>
        <message>
            <source>Graphics Halftone</source>
            <translation>图形半色调</translation>
        </message>
        <message>
            <source>Graphics EdgeEnhance</source>
            <extracomment>Graphics Edge Enhancement</extracomment>
            <translation>图形边缘增强</translation>
        </message>
        <message>
            <source>Simulation Profile</source>
            <translation>模拟配置文件</translation>
        </message>
        <message>
            <source>Match Paper Color</source>
            <translation>匹配纸张颜色</translation>
        </message>
        <message>
            <source>CMYK Gray Treatment</source>
            <translation>CMYK 灰色处理</translation>
        </message>
        <message>
            <source>Disk</source>
            <translation>磁盘</translation>
        </message>
        <message>
            <source>Card</source>
            <translation>存储卡</translation>
        </message>
        <message>
            <source>ProfileTitle</source>
            <extracomment>Profile Management</extracomment>
            <translation>配置文件管理</translation>
        </message>
        <message>
            <source>Not available while %1 is on. Turn it off to use this setting.</source>
            <translation>“%1”开启时不可用。将其关闭即可使用此设置。</translation>
        </message>
        <message>
            <source>Available only while %1 is set to %2. Choose that to use this setting.</source>
            <translation>仅当“%1”设为“%2”时可用。请先选择该值，再使用此设置。</translation>
        </message>
        <message>
            <source>Not available while %1 is set to %2. Choose another to use this setting.</source>
            <translation>“%1”设为“%2”时不可用。选择其他值即可使用此设置。</translation>
        </message>
        <message>
            <source>Only administrators of the print system can manage profiles.</source>
            <translation>只有打印系统的管理员才能管理配置文件。</translation>
        </message>
        <message>
            <source>%1 is on: one setting is not used.</source>
            <translation>“%1”已开启：1 项设置不起作用。</translation>
        </message>
        <message>
            <source>%1 is on: %2 settings are not used.</source>
            <translation>“%1”已开启：%2 项设置不起作用。</translation>
        </message>
        <message>
            <source>Turn Off</source>
            <translation>将其关闭</translation>
        </message>
        <message>
            <source>Turn off %1</source>
            <translation>关闭“%1”</translation>
        </message>
        <message>
            <source>General settings</source>
            <translation>常规设置</translation>
        </message>
        <message>
            <source>RGB</source>
            <extracomment>RGB Source</extracomment>
            <translation>RGB 源</translation>
        </message>
        <message>
            <source>SIM</source>
            <extracomment>Simulation</extracomment>
            <translation>模拟</translation>
        </message>
        <message>
            <source>DST</source>
            <extracomment>Destination</extracomment>
            <translation>目标</translation>
        </message>
        <message>
            <source>Profile Class:</source>
            <extracomment>Profile Cla&amp;ss:</extracomment>
            <translation>配置文件类别(&amp;S)：</translation>
        </message>
        <message>
            <source>Profiles:</source>
            <extracomment>&amp;Profiles:</extracomment>
            <translation>配置文件(&amp;P)：</translation>
        </message>
        <message>
            <source>Add</source>
            <extracomment>&amp;Add</extracomment>
            <translation>添加(&amp;A)</translation>
        </message>
        <message>
            <source>Edit</source>
            <extracomment>&amp;Edit</extracomment>
            <translation>编辑(&amp;E)</translation>
        </message>
        <message>
            <source>Delete</source>
            <extracomment>&amp;Delete</extracomment>
            <translation>删除(&amp;D)</translation>
        </message>
        <message>
            <source>Entry</source>
            <translation>条目</translation>
        </message>
        <message>
            <source>File Name:</source>
            <extracomment>&amp;File Name:</extracomment>
            <translation>文件名(&amp;F)：</translation>
        </message>
        <message>
            <source>Browse...</source>
            <extracomment>&amp;Browse…</extracomment>
            <translation>浏览(&amp;B)…</translation>
        </message>
        <message>
            <source>Profile Name:</source>
            <extracomment>Profile &amp;Name:</extracomment>
            <translation>配置文件名称(&amp;N)：</translation>
        </message>
        <message>
            <source>Location:</source>
            <extracomment>L&amp;ocation:</extracomment>
            <translation>位置(&amp;O)：</translation>
        </message>
        <message>
            <source>Confirm Entry</source>
            <extracomment>&amp;Confirm Entry</extracomment>
            <translation>确认条目(&amp;C)</translation>
        </message>
        <message>
            <source>Discard Entry</source>
            <extracomment>D&amp;iscard Entry</extracomment>
            <translation>放弃条目(&amp;I)</translation>
        </message>
        <message>
            <source>OK</source>
            <extracomment>O&amp;K</extracomment>
            <translation>确定(&amp;K)</translation>
        </message>
        <message>
            <source>Cancel</source>
            <extracomment>Cance&amp;l</extracomment>
            <translation>取消(&amp;L)</translation>
        </message>
        <message>
            <source>On Printer</source>
            <translation>在打印机上</translation>
        </message>
        <message>
            <source>File Name</source>
            <translation>文件名</translation>
        </message>
        <message>
            <source>Profile Name</source>
            <translation>配置文件名称</translation>
        </message>
        <message>
            <source>Location</source>
            <translation>位置</translation>
        </message>
        <message>
            <source>In Menu</source>
            <translation>在菜单中</translation>
        </message>
        <message>
            <source>On the printer</source>
            <translation>在打印机上</translation>
        </message>
        <message>
            <source>Not on the printer</source>
            <translation>不在打印机上</translation>
        </message>
        <message>
            <source>Shown in the menus</source>
            <translation>显示在菜单中</translation>
        </message>
        <message>
            <source>Not shown in the menus</source>
            <translation>不显示在菜单中</translation>
        </message>
        <message>
            <source>A profile that is on the printer cannot be deleted</source>
            <translation>不能删除打印机上已有的配置文件</translation>
        </message>
        <message>
            <source>Choose a Profile</source>
            <translation>选择配置文件</translation>
        </message>
        <message>
            <source>NAME.ICC</source>
            <translation>NAME.ICC</translation>
        </message>
        <message>
            <source>The name that the menus show</source>
            <translation>菜单中显示的名称</translation>
        </message>
        <message>
            <source>NameRule</source>
            <extracomment>File name: up to 27 characters, a dot and up to 3 more; no spaces and none of " * + , / : ; &lt; = &gt; ? @ [ \ ] |. Profile name: up to 30 letters, digits, signs and spaces, without accents.</extracomment>
            <translation>文件名：最多 27 个字符，加一个点和最多 3 个字符；不能含空格和以下字符：" * + , / : ; &lt; = &gt; ? @ [ \ ] |。配置文件名称：最多 30 个英文字母（不带重音）、数字、符号或空格。</translation>
        </message>
        <message>
            <source>No profiles yet. Those of a network printer appear once it has been asked; Add enters one by hand.</source>
            <translation>还没有配置文件。查询网络打印机后，其配置文件会显示在此处；也可点击“添加”手动输入。</translation>
        </message>
        <message>
            <source>Entry, not confirmed yet</source>
            <translation>条目，尚未确认</translation>
        </message>
        <message>
            <source>Entry, discarded</source>
            <translation>条目，已放弃</translation>
        </message>
        <message>
            <source>Entry: this file is in the list already</source>
            <translation>条目：此文件已在列表中</translation>
        </message>
        <message>
            <source>Entry: the list is full</source>
            <translation>条目：列表已满</translation>
        </message>
        <message>
            <source>Select a profile first</source>
            <extracomment>Select a profile first.</extracomment>
            <translation>请先选择配置文件。</translation>
        </message>
        <message>
            <source>Confirm or discard the entry first</source>
            <extracomment>Confirm or discard the entry first.</extracomment>
            <translation>请先确认或放弃条目。</translation>
        </message>
        <message>
            <source>Press Add, or select a profile and press Edit</source>
            <extracomment>Press Add, or select a profile and press Edit.</extracomment>
            <translation>请点击“添加”，或选择配置文件后点击“编辑”。</translation>
        </message>
        <message>
            <source>Type a file name first; it cannot begin with a dot</source>
            <extracomment>Type a file name first; it cannot begin with a dot.</extracomment>
            <translation>请先输入文件名，且不能以点开头。</translation>
        </message>
        <message>
            <source>The printer names this file; only the profile name can be changed</source>
            <extracomment>The printer names this file; only the profile name can be changed.</extracomment>
            <translation>此文件由打印机命名，只能更改配置文件名称。</translation>
        </message>
        <message>
            <source>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in</source>
            <extracomment>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in.</extracomment>
            <translation>条目尚未确认：“确定”会将其舍弃，“确认条目”会将其加入列表。</translation>
        </message>
        <message>
            <source>The printer reported this profile when it was last asked</source>
            <extracomment>The printer reported this profile when it was last asked.</extracomment>
            <translation>上次查询时，打印机报告了此配置文件。</translation>
        </message>
        <message>
            <source>The printer did not report this profile when it was last asked</source>
            <extracomment>The printer did not report this profile when it was last asked.</extracomment>
            <translation>上次查询时，打印机未报告此配置文件。</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <extracomment>Entered by hand.</extracomment>
            <translation>手动输入的配置文件。</translation>
        </message>
    </context>
</TS>
