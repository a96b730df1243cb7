<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
    <context>
        <name>bvprint</name>
        <message>
            <source>%1 “%2”</source>
            <comment>option and choice</comment>
            <translation>%1“%2”</translation>
        </message>
        <message>
            <source>%1 and %2 do not go together.</source>
            <comment>options and choices</comment>
            <translation>%1与%2不能同时使用。</translation>
        </message>
        <message>
            <source>, </source>
            <comment>between options</comment>
            <translation>、</translation>
        </message>
        <message>
            <source>Change %1 to %2</source>
            <translation>将“%1”改为“%2”</translation>
        </message>
        <message>
            <source>Turn %1 on</source>
            <translation>开启“%1”</translation>
        </message>
        <message>
            <source>Turn %1 off</source>
            <translation>关闭“%1”</translation>
        </message>
        <message>
            <source>Document</source>
            <translation>文档</translation>
        </message>
        <message>
            <source>The document does not come to its end.</source>
            <translation>文档一直没有传送完毕。</translation>
        </message>
        <message>
            <source>The pages of the document could not be counted in time.</source>
            <translation>未能及时统计出文档的页数。</translation>
        </message>
        <message>
            <source>Job %1 is not held: it waits for its turn, and is printed as it is.</source>
            <translation>打印任务 %1 未被暂挂：它正在排队，将按原样打印。</translation>
        </message>
        <message>
            <source>Job %1 is being printed already.</source>
            <translation>打印任务 %1 已在打印。</translation>
        </message>
        <message>
            <source>Job %1 has begun to print, and stopped. Resume it in the system's printer settings.</source>
            <translation>打印任务 %1 已开始打印，但中途停止。请在系统的打印机设置中恢复打印。</translation>
        </message>
        <message>
            <source>Job %1 was canceled. Print the document again.</source>
            <translation>打印任务 %1 已取消。请重新打印该文档。</translation>
        </message>
        <message>
            <source>Job %1 failed. Print the document again.</source>
            <translation>打印任务 %1 失败。请重新打印该文档。</translation>
        </message>
        <message>
            <source>Job %1 has been printed already.</source>
            <translation>打印任务 %1 已打印完毕。</translation>
        </message>
        <message>
            <source>Other choices decide this now.</source>
            <translation>目前由其他选项决定。</translation>
        </message>
        <message>
            <source>The picture %1 cannot be written.</source>
            <translation>无法写入图片 %1。</translation>
        </message>
        <message>
            <source>No print server: jobs are written to %1</source>
            <translation>没有打印服务器：打印任务将写入 %1</translation>
        </message>
        <message>
            <source>The print server has no printer %1 any more; choose another one.</source>
            <translation>打印服务器上已没有打印机 %1，请选择其他打印机。</translation>
        </message>
        <message>
            <source>The printer %1 cannot print %2: it does not take documents of that format. Save it as PDF and print that.</source>
            <translation>打印机 %1 无法打印 %2：它不接受该格式的文档。请另存为 PDF 后再打印。</translation>
        </message>
        <message>
            <source>The printer %1 takes no jobs just now; choose another one, or ask who looks after it.</source>
            <translation>打印机 %1 目前不接受打印任务，请选择其他打印机，或联系打印机管理员。</translation>
        </message>
        <message>
            <source>You may not print on the printer %1; ask who looks after it.</source>
            <translation>您无权使用打印机 %1 打印，请联系打印机管理员。</translation>
        </message>
        <message>
            <source>You may not print on the printer %1 without logging in to the print server; ask who looks after it.</source>
            <translation>未登录打印服务器，不能使用打印机 %1 打印，请联系打印机管理员。</translation>
        </message>
        <message>
            <source>out of paper: fill a tray</source>
            <translation>缺纸：请给纸盒加纸</translation>
        </message>
        <message>
            <source>needs paper: fill a tray</source>
            <translation>需要纸张：请给纸盒加纸</translation>
        </message>
        <message>
            <source>little paper left</source>
            <translation>纸张即将用完</translation>
        </message>
        <message>
            <source>paper jam: take out the paper that is stuck</source>
            <translation>卡纸：请取出卡住的纸张</translation>
        </message>
        <message>
            <source>out of toner: change the cartridge</source>
            <translation>墨粉用尽：请更换墨粉盒</translation>
        </message>
        <message>
            <source>little toner left</source>
            <translation>墨粉即将用完</translation>
        </message>
        <message>
            <source>out of toner or ink: change the cartridge</source>
            <translation>墨粉或墨水用尽：请更换墨粉盒或墨盒</translation>
        </message>
        <message>
            <source>little toner or ink left</source>
            <translation>墨粉或墨水即将用完</translation>
        </message>
        <message>
            <source>the container for waste toner is full: change it</source>
            <translation>废粉盒已满：请更换</translation>
        </message>
        <message>
            <source>the container for waste toner is almost full</source>
            <translation>废粉盒即将装满</translation>
        </message>
        <message>
            <source>the developer is used up: change it</source>
            <translation>显影剂用尽：请更换</translation>
        </message>
        <message>
            <source>the developer is almost used up</source>
            <translation>显影剂即将用完</translation>
        </message>
        <message>
            <source>the drum is used up: change it</source>
            <translation>感光鼓寿命已尽：请更换</translation>
        </message>
        <message>
            <source>the drum is almost used up</source>
            <translation>感光鼓寿命将尽</translation>
        </message>
        <message>
            <source>too hot: let it cool down</source>
            <translation>温度过高：请等待冷却</translation>
        </message>
        <message>
            <source>a door is open: close it</source>
            <translation>机门未关：请关好</translation>
        </message>
        <message>
            <source>a cover is open: close it</source>
            <translation>机盖未关：请关好</translation>
        </message>
        <message>
            <source>a tray is missing: push it in</source>
            <translation>缺少纸盒：请将纸盒推入到位</translation>
        </message>
        <message>
            <source>the output tray is missing: put it in</source>
            <translation>缺少出纸盘：请装上</translation>
        </message>
        <message>
            <source>the output tray is full: empty it</source>
            <translation>出纸盘已满：请取走纸张</translation>
        </message>
        <message>
            <source>the output tray is almost full</source>
            <translation>出纸盘即将装满</translation>
        </message>
        <message>
            <source>no room for more jobs: wait for others to be printed</source>
            <translation>打印任务已满：请等待其他任务打印完毕</translation>
        </message>
        <message>
            <source>switched off or not connected: switch it on</source>
            <translation>已关机或未连接：请开机</translation>
        </message>
        <message>
            <source>switched off: switch it on</source>
            <translation>已关机：请开机</translation>
        </message>
        <message>
            <source>does not answer: is it switched on and connected?</source>
            <translation>没有响应：请检查是否已开机并连接</translation>
        </message>
        <message>
            <source>its driver is not complete: ask who looks after it</source>
            <translation>驱动程序不完整：请联系打印机管理员</translation>
        </message>
        <message>
            <source>The print server does not tell its jobs: %1.</source>
            <translation>无法从打印服务器获取打印任务：%1。</translation>
        </message>
        <message>
            <source>%1: there is no such profile in your list.</source>
            <translation>%1：您的列表中没有这个配置文件。</translation>
        </message>
        <message>
            <source>Standard output cannot be written.</source>
            <translation>无法写入标准输出。</translation>
        </message>
        <message>
            <source>The choices are not complete yet.</source>
            <translation>设置尚未就绪。</translation>
        </message>
        <message>
            <source>request id is %1-%2 (%3 file(s))</source>
            <translation>请求 ID 为 %1-%2（%3 个文件）</translation>
        </message>
        <message>
            <source>Nothing is sent without a print server. These would be the options of the job:</source>
            <translation>没有打印服务器，不会发送任何内容。作业的选项将是：</translation>
        </message>
        <message>
            <source>The printer's default.</source>
            <translation>打印机的默认设置。</translation>
        </message>
        <message>
            <source>Given on the command line.</source>
            <translation>在命令行中指定。</translation>
        </message>
        <message>
            <source>Follows from another choice.</source>
            <translation>由其他选项得出。</translation>
        </message>
        <message>
            <source>Changed</source>
            <translation>已更改</translation>
        </message>
        <message>
            <source>Unchanged</source>
            <translation>未更改</translation>
        </message>
        <message>
            <source>%1 (default)</source>
            <translation>%1（默认）</translation>
        </message>
        <message>
            <source>This job</source>
            <translation>此作业</translation>
        </message>
        <message>
            <source>Copies</source>
            <translation>份数</translation>
        </message>
        <message>
            <source>Pages to print</source>
            <translation>要打印的页面</translation>
        </message>
        <message>
            <source>You have no defaults called “%1”; lpoptions stores some.</source>
            <translation>您没有名为“%1”的默认设置；可用 lpoptions 保存。</translation>
        </message>
        <message>
            <source>From the preset “%1”.</source>
            <translation>来自预设“%1”。</translation>
        </message>
        <message>
            <source>“%1” is no option. Write KEYWORD=CHOICE.</source>
            <translation>“%1”不是选项。请写成 KEYWORD=CHOICE。</translation>
        </message>
        <message>
            <source>The print dialog no longer opens by itself for your waiting jobs.
</source>
            <translation>您的打印任务等待处理时，不再自动打开打印对话框。
</translation>
        </message>
        <message>
            <source>The print dialog opens for your jobs that the print server holds, from now on and in later sessions.
</source>
            <translation>从现在起，只要打印服务器暂挂了您的打印任务，就会打开打印对话框；以后登录时也一样。
</translation>
        </message>
        <message>
            <source>The print dialog opens for your jobs that the print server holds, from your next session on.
</source>
            <translation>从您下次登录起，只要打印服务器暂挂了您的打印任务，就会打开打印对话框。
</translation>
        </message>
        <message>
            <source>The agent runs in this session already.</source>
            <translation>此会话中已有代理程序在运行。</translation>
        </message>
        <message>
            <source>The file %1 cannot be written: %2.</source>
            <translation>无法写入文件 %1：%2。</translation>
        </message>
        <message>
            <source>The file %1 cannot be removed: %2.</source>
            <translation>无法移除文件 %1：%2。</translation>
        </message>
        <message>
            <source>Job %1 is in a state that this dialog does not know.</source>
            <translation>打印任务 %1 处于此对话框无法识别的状态。</translation>
        </message>
        <message>
            <source>The print server %1 has no job %2. It may have been printed long ago.</source>
            <translation>打印服务器 %1 上没有打印任务 %2。它可能早已打印完毕。</translation>
        </message>
        <message>
            <source>The print server does not tell about job %1: %2.</source>
            <translation>无法从打印服务器获取打印任务 %1 的信息：%2。</translation>
        </message>
        <message>
            <source>Job %1 was sent to the printer “%2”, not to “%3”.</source>
            <translation>打印任务 %1 发送到了打印机“%2”，而不是“%3”。</translation>
        </message>
        <message>
            <source>Job %1 belongs to somebody else. Only its owner can print it.</source>
            <translation>打印任务 %1 属于其他用户，只有其所有者才能打印。</translation>
        </message>
        <message>
            <source>Job %1 is still being sent. Try again in a moment.</source>
            <translation>打印任务 %1 仍在发送，请稍后再试。</translation>
        </message>
        <message>
            <source>“%1” is no job. Give its number, as lpstat -o shows it.</source>
            <translation>“%1”不是打印任务。请输入 lpstat -o 显示的任务编号。</translation>
        </message>
        <message>
            <source>The options --queue and --job name different printers.</source>
            <translation>选项 --queue 和 --job 指定了不同的打印机。</translation>
        </message>
        <message>
            <source>Document %1</source>
            <translation>文档 %1</translation>
        </message>
        <message>
            <source>No preview: the documents cannot be kept.</source>
            <translation>无法预览：文档无法暂存。</translation>
        </message>
        <message>
            <source>No preview: the print server does not give the document out.</source>
            <translation>无法预览：打印服务器不提供此文档。</translation>
        </message>
        <message>
            <source>No preview: %1</source>
            <translation>无法预览：%1</translation>
        </message>
        <message>
            <source>The print server refuses to change job %1, which stays held: %2.</source>
            <translation>打印服务器拒绝更改打印任务 %1，该任务仍处于暂挂状态：%2。</translation>
        </message>
        <message>
            <source>%1 Job %2 stays held.</source>
            <translation>%1打印任务 %2 仍处于暂挂状态。</translation>
        </message>
        <message>
            <source>The print server did not confirm that job %1 is canceled. Look at the printer's jobs.</source>
            <translation>打印服务器未确认打印任务 %1 已取消。请查看打印机的任务列表。</translation>
        </message>
        <message>
            <source>Job %1 could not be canceled: %2.</source>
            <translation>未能取消打印任务 %1：%2。</translation>
        </message>
        <message>
            <source>%1 is no file of this computer; save the document here first.</source>
            <translation>%1 不是这台计算机上的文件；请先将文档保存到本机。</translation>
        </message>
        <message>
            <source>%1 cannot be written: %2.</source>
            <translation>无法写入 %1：%2。</translation>
        </message>
        <message>
            <source>The document %1 cannot be copied to %2: %3.</source>
            <translation>无法将文档 %1 复制到 %2：%3。</translation>
        </message>
        <message>
            <source>The job was canceled. Nothing was printed.</source>
            <translation>打印任务已取消，没有打印任何内容。</translation>
        </message>
        <message>
            <source>The print server cannot carry an option of the name “%1”.</source>
            <translation>打印服务器无法传递名为“%1”的选项。</translation>
        </message>
        <message>
            <source>The print server cannot carry the value %1 of the option %2; choose another one.</source>
            <translation>打印服务器无法传递选项 %2 的值 %1；请选择其他值。</translation>
        </message>
        <message>
            <source>“%1” is no page or range of pages. Write for example 1-3, 8.</source>
            <translation>“%1”不是页码或页面范围。请按 1-3, 8 这样的格式输入。</translation>
        </message>
        <message>
            <source>Pages are counted from 1.</source>
            <translation>页码从 1 开始。</translation>
        </message>
        <message>
            <source>The range %1 runs backwards. Write %2-%3.</source>
            <translation>范围 %1 前后颠倒。请输入 %2-%3。</translation>
        </message>
        <message>
            <source>Enter the pages to print, for example 1-3, 8.</source>
            <translation>请输入要打印的页面，例如 1-3, 8。</translation>
        </message>
        <message>
            <source>There is no document to print.</source>
            <translation>没有要打印的文档。</translation>
        </message>
        <message>
            <source>The document %1 is not there.</source>
            <translation>找不到文档 %1。</translation>
        </message>
        <message>
            <source>%1 is no document but a folder or a device.</source>
            <translation>%1 是文件夹或设备，不是文档。</translation>
        </message>
        <message>
            <source>The document %1 cannot be read: %2.</source>
            <translation>无法读取文档 %1：%2。</translation>
        </message>
        <message>
            <source>The document %1 is empty.</source>
            <translation>文档 %1 是空的。</translation>
        </message>
        <message>
            <source>A range of pages belongs to one document. Print the documents one by one, or all of their pages.</source>
            <translation>页面范围只适用于单个文档。请逐个打印文档，或打印所有页面。</translation>
        </message>
        <message>
            <source>%1 has 1 page; there is no page %2.</source>
            <translation>%1 只有 1 页，没有第 %2 页。</translation>
        </message>
        <message>
            <source>%1 has %2 pages; there is no page %3.</source>
            <translation>%1 共有 %2 页，没有第 %3 页。</translation>
        </message>
        <message>
            <source>The options cannot be kept.</source>
            <translation>无法保存选项。</translation>
        </message>
        <message>
            <source>The options do not let this job be printed.</source>
            <translation>按当前选项无法打印此任务。</translation>
        </message>
        <message>
            <source>The printer %1 refused the job: %2.</source>
            <translation>打印机 %1 拒绝了打印任务：%2。</translation>
        </message>
        <message>
            <source>the document</source>
            <translation>该文档</translation>
        </message>
        <message>
            <source>Nothing was printed.</source>
            <translation>没有打印任何内容。</translation>
        </message>
        <message>
            <source>The print server gave the job no number.</source>
            <translation>打印服务器没有为打印任务分配编号。</translation>
        </message>
        <message>
            <source>Look whether it was printed before printing again.</source>
            <translation>重新打印前，请先确认是否已经打印。</translation>
        </message>
        <message>
            <source>The job was stopped, but the print server did not confirm that it is canceled.</source>
            <translation>打印任务已停止，但打印服务器未确认其已取消。</translation>
        </message>
        <message>
            <source>The connection to the print server was lost before all of %1 was sent.</source>
            <translation>%1 尚未发送完毕，与打印服务器的连接就断开了。</translation>
        </message>
        <message>
            <source>The connection to the print server was lost, and %1 was not printed; print again.</source>
            <translation>与打印服务器的连接已断开，%1 没有打印；请重新打印。</translation>
        </message>
        <message>
            <source>The print server took the document but did not confirm it.</source>
            <translation>打印服务器收到了文档，但未予确认。</translation>
        </message>
        <message>
            <source>The job was canceled; print again.</source>
            <translation>打印任务已取消；请重新打印。</translation>
        </message>
        <message>
            <source>The print server did not confirm the job. Look whether it was printed before printing again.</source>
            <translation>打印服务器未确认打印任务。重新打印前，请先确认是否已经打印。</translation>
        </message>
        <message>
            <source>The document has more than %1.</source>
            <translation>文档超过了 %1。</translation>
        </message>
        <message>
            <source>The document cannot be kept in %1: %2.</source>
            <translation>无法将文档暂存到 %1：%2。</translation>
        </message>
        <message>
            <source>What the program wants to print is no file.</source>
            <translation>程序要打印的内容不是文件。</translation>
        </message>
        <message>
            <source>The document cannot be read: %1.</source>
            <translation>无法读取文档：%1。</translation>
        </message>
        <message>
            <source>The document is empty.</source>
            <translation>文档是空的。</translation>
        </message>
        <message>
            <source>A preset needs a name.</source>
            <translation>请为预设命名。</translation>
        </message>
        <message>
            <source>The name of a preset has at most %1 characters.</source>
            <translation>预设名称最多 %1 个字符。</translation>
        </message>
        <message>
            <source>The name of a preset is one line of text.</source>
            <translation>预设名称只能是一行文字。</translation>
        </message>
        <message>
            <source>%1 cannot be used: %2</source>
            <translation>%1 无法使用：%2</translation>
        </message>
        <message>
            <source>It is no JSON object, as presets are.</source>
            <translation>这不是预设所用的 JSON 对象。</translation>
        </message>
        <message>
            <source>It is no preset of this dialog.</source>
            <translation>这不是此对话框的预设。</translation>
        </message>
        <message>
            <source>It was made by a newer version of this dialog. Have that installed to use it.</source>
            <translation>由较新版本的打印对话框创建。请安装该版本后再使用。</translation>
        </message>
        <message>
            <source>Its name or its options are missing.</source>
            <translation>其中缺少名称或选项。</translation>
        </message>
        <message>
            <source>The preset %1</source>
            <translation>预设 %1</translation>
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation>名称(&amp;N)：</translation>
        </message>
        <message>
            <source>Check that its folder can be written and that the disk has room.</source>
            <translation>请检查其文件夹是否可写，以及磁盘是否有空间。</translation>
        </message>
        <message>
            <source>%1: this printer has no such setting.</source>
            <translation>%1：此打印机没有这项设置。</translation>
        </message>
        <message>
            <source>%1: this printer does not offer “%2”.</source>
            <translation>%1：此打印机不提供“%2”。</translation>
        </message>
        <message>
            <source>%1: the saved choice is not there any more.</source>
            <translation>%1：所保存的选项已不存在。</translation>
        </message>
        <message>
            <source>It is protected by a password.</source>
            <translation>文档受密码保护。</translation>
        </message>
        <message>
            <source>It takes too long to draw.</source>
            <translation>绘制页面耗时过长。</translation>
        </message>
        <message>
            <source>It cannot be read and may be damaged.</source>
            <translation>文档无法读取，可能已损坏。</translation>
        </message>
        <message>
            <source>%1, %2</source>
            <translation>%1，%2</translation>
        </message>
        <message>
            <source>No preview of documents of this kind.</source>
            <translation>此类文档无法预览。</translation>
        </message>
        <message>
            <source>No preview</source>
            <translation>无法预览</translation>
        </message>
        <message>
            <source>%1 (%2)</source>
            <comment>description and name of a printer</comment>
            <translation>%1（%2）</translation>
        </message>
        <message>
            <source>takes no jobs: choose another printer</source>
            <translation>不接受打印任务：请选择其他打印机</translation>
        </message>
        <message>
            <source>stopped: jobs wait until somebody resumes it</source>
            <translation>已停止：恢复运行后才会打印等待中的任务</translation>
        </message>
        <message>
            <source> · </source>
            <translation> · </translation>
        </message>
        <message>
            <source>This printer takes no jobs at the moment. Choose another one, or ask who looks after it.</source>
            <translation>此打印机目前不接受打印任务。请选择其他打印机，或联系打印机管理员。</translation>
        </message>
        <message>
            <source>This printer takes no jobs at the moment (%1). Choose another one, or ask who looks after it.</source>
            <translation>此打印机目前不接受打印任务（%1）。请选择其他打印机，或联系打印机管理员。</translation>
        </message>
        <message>
            <source>%1 cannot be read: %2.</source>
            <translation>%1 无法读取：%2。</translation>
        </message>
        <message>
            <source>%1 is larger than %2.</source>
            <translation>%1 大于 %2。</translation>
        </message>
        <message>
            <source>%1 MB</source>
            <translation>%1 MB</translation>
        </message>
        <message>
            <source>%1 is no file.</source>
            <translation>%1 不是文件。</translation>
        </message>
        <message>
            <source>%1 is damaged or cut off.</source>
            <translation>%1 已损坏或不完整。</translation>
        </message>
        <message>
            <source>a quoted value</source>
            <translation>引号中的值</translation>
        </message>
        <message>
            <source>The print server does not tell its printers: %1. Try again later.</source>
            <translation>无法从打印服务器获取打印机列表：%1。请稍后再试。</translation>
        </message>
        <message>
            <source>The print server %1 does not answer; check that it is running.</source>
            <translation>打印服务器 %1 没有响应；请检查它是否正在运行。</translation>
        </message>
        <message>
            <source>The file of your defaults, %1, cannot be read.</source>
            <translation>无法读取您的默认设置文件 %1。</translation>
        </message>
        <message>
            <source>Your defaults could not be written: %1: %2.</source>
            <translation>无法将您的默认设置写入 %1：%2。</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>复制</translation>
        </message>
        <message>
            <source>%1 tells what is built into the printer; no job can choose it.</source>
            <translation>%1 表示打印机已安装的部件，作业无法选择。</translation>
        </message>
        <message>
            <source>%1 cannot be “%2”; it takes %3.</source>
            <translation>%1 不能为“%2”；可用的值：%3。</translation>
        </message>
        <message>
            <source>This printer has no option “%1”. bvprint --list shows all.</source>
            <translation>此打印机没有选项“%1”。bvprint --list 会列出全部选项。</translation>
        </message>
        <message>
            <source>This printer has no option “%1”. Did you mean %2? bvprint --list shows all.</source>
            <translation>此打印机没有选项“%1”。您是指 %2 吗？bvprint --list 会列出全部选项。</translation>
        </message>
        <message>
            <source>bvprint --list shows all choices.</source>
            <translation>bvprint --list 会列出所有可选值。</translation>
        </message>
        <message>
            <source>Choose one of: %1</source>
            <translation>请选择以下之一：%1</translation>
        </message>
        <message>
            <source>and %1 more.</source>
            <comment>conflicts</comment>
            <translation>还有 %1 处冲突。</translation>
        </message>
        <message>
            <source>Settled.</source>
            <comment>conflicts</comment>
            <translation>已解决。</translation>
        </message>
        <message>
            <source>&amp;My Defaults</source>
            <translation>我的默认设置(&amp;M)</translation>
        </message>
        <message>
            <source>Use the present choices for other programs and later jobs as well</source>
            <translation>在其他程序和以后的打印任务中也使用当前设置</translation>
        </message>
        <message>
            <source>Use for &amp;All My Printing</source>
            <translation>用于我的所有打印(&amp;A)</translation>
        </message>
        <message>
            <source>Store under a &amp;Name…</source>
            <translation>命名保存(&amp;N)…</translation>
        </message>
        <message>
            <source>&amp;Take Back</source>
            <translation>撤销(&amp;T)</translation>
        </message>
        <message>
            <source>Your programs now print on “%1” with these choices, unless they choose otherwise.</source>
            <translation>今后您的程序将以这些设置在“%1”上打印，除非程序另有指定。</translation>
        </message>
        <message>
            <source>Store under a Name</source>
            <translation>命名保存</translation>
        </message>
        <message>
            <source>&amp;Name, for example “Draft”:</source>
            <translation>名称，例如“草稿”(&amp;N)：</translation>
        </message>
        <message>
            <source>These choices can now be used as “%1”, by this dialog and other programs.</source>
            <translation>现在此对话框和其他程序可通过名称“%1”使用这些设置。</translation>
        </message>
        <message>
            <source>Your defaults of “%1” are again what they were. The choices shown here stay.</source>
            <translation>您在“%1”上的默认设置已恢复原状。此处显示的设置不变。</translation>
        </message>
        <message>
            <source>Waiting for “%1” to answer…</source>
            <translation>正在等待“%1”响应…</translation>
        </message>
        <message>
            <source>S&amp;kip</source>
            <translation>跳过(&amp;K)</translation>
        </message>
        <message>
            <source>The printer did not answer. None of its profiles are known.</source>
            <translation>打印机没有响应，其色彩配置文件均未知。</translation>
        </message>
        <message>
            <source>The printer did not answer. Its profiles are shown as of %1, %2.</source>
            <comment>date and time</comment>
            <translation>打印机没有响应。显示的是截至 %1 %2 的色彩配置文件。</translation>
        </message>
        <message>
            <source>d MMMM</source>
            <comment>a date in the notation of QLocale</comment>
            <translation>M月d日</translation>
        </message>
        <message>
            <source>Standard input is no document here: the commands come from it.</source>
            <translation>标准输入在此处用于读取命令，不能作为文档。</translation>
        </message>
        <message>
            <source>Standard input can be printed only once.</source>
            <translation>标准输入只能打印一次。</translation>
        </message>
        <message>
            <source>standard input</source>
            <translation>标准输入</translation>
        </message>
        <message>
            <source>Standard input cannot be kept in %1: %2.</source>
            <translation>无法将标准输入暂存到 %1：%2。</translation>
        </message>
        <message>
            <source>Standard input cannot be read: %1.</source>
            <translation>无法读取标准输入：%1。</translation>
        </message>
        <message>
            <source>Drop files here, or choose Add.</source>
            <translation>将文件拖放到此处，或点击“添加”。</translation>
        </message>
        <message>
            <source>“%1” was not found.</source>
            <translation>找不到“%1”。</translation>
        </message>
        <message>
            <source>“%1” is a folder. Add the files in it.</source>
            <translation>“%1”是文件夹。请添加其中的文件。</translation>
        </message>
        <message>
            <source>“%1” cannot be read. Ask its owner for leave to read it.</source>
            <translation>无法读取“%1”。请向其所有者申请读取权限。</translation>
        </message>
        <message>
            <source>&amp;Add…</source>
            <translation>添加(&amp;A)…</translation>
        </message>
        <message>
            <source>Remo&amp;ve</source>
            <translation>移除(&amp;V)</translation>
        </message>
        <message>
            <source>Documents</source>
            <translation>文档</translation>
        </message>
        <message>
            <source>Alt+Up and Alt+Down move the selected documents, Delete takes them out</source>
            <translation>按 Alt+上箭头和 Alt+下箭头移动所选文档，按 Delete 移除</translation>
        </message>
        <message>
            <source>Choose files to print (Ctrl+O)</source>
            <translation>选择要打印的文件（Ctrl+O）</translation>
        </message>
        <message>
            <source>“%1” is in the list already.</source>
            <translation>“%1”已在列表中。</translation>
        </message>
        <message>
            <source>Only files of this computer can be printed. Save the document here first.</source>
            <translation>只能打印这台计算机上的文件。请先将文档保存到本机。</translation>
        </message>
        <message>
            <source>Add Documents</source>
            <translation>添加文档</translation>
        </message>
        <message>
            <source>&amp;Documents (%1, %2):</source>
            <comment>number and size</comment>
            <translation>文档（%1 个，%2）(&amp;D)：</translation>
        </message>
        <message>
            <source>&amp;Documents:</source>
            <translation>文档(&amp;D)：</translation>
        </message>
        <message>
            <source>Take the selected documents out of the job; the files themselves stay</source>
            <translation>从打印任务中移除所选文档；文件本身不受影响</translation>
        </message>
        <message>
            <source>Select the documents to take out first</source>
            <translation>请先选择要移除的文档</translation>
        </message>
        <message>
            <source>The document %1</source>
            <translation>文档 %1</translation>
        </message>
        <message>
            <source>The document %1 became shorter while it was being sent.</source>
            <translation>文档 %1 在发送过程中变小了。</translation>
        </message>
        <message>
            <source>The folder %1 cannot be made.</source>
            <translation>无法创建文件夹 %1。</translation>
        </message>
        <message>
            <source>The job was written to %1.</source>
            <translation>打印任务已写入 %1。</translation>
        </message>
        <message>
            <source>A range of pages belongs to one document, and this job has %1. Print all of their pages.</source>
            <translation>页面范围只适用于单个文档，而此打印任务有 %1 个文档。请打印所有页面。</translation>
        </message>
        <message>
            <source>Nothing was printed. Job %1 stays held.</source>
            <translation>没有打印任何内容。打印任务 %1 仍处于暂挂状态。</translation>
        </message>
        <message>
            <source>The print server did not confirm that job %1 is released. Look at the printer's jobs before printing again.</source>
            <translation>打印服务器未确认打印任务 %1 已放行。重新打印前，请先查看打印机的任务列表。</translation>
        </message>
        <message>
            <source>Job %1: %2</source>
            <translation>打印任务 %1：%2</translation>
        </message>
        <message>
            <source>%1 documents</source>
            <translation>%1 个文档</translation>
        </message>
        <message>
            <source>Sent %1. It is held until you print or cancel it.</source>
            <translation>发送时间：%1。任务将一直暂挂，直到您打印或取消它。</translation>
        </message>
        <message>
            <source>Ca&amp;ncel Job</source>
            <translation>取消任务(&amp;N)</translation>
        </message>
        <message>
            <source>Print – %1</source>
            <translation>打印 – %1</translation>
        </message>
        <message>
            <source>Document in the preview</source>
            <translation>预览中的文档</translation>
        </message>
        <message>
            <source>Remove the job from the printer without printing it</source>
            <translation>从打印机移除此任务，不打印</translation>
        </message>
        <message>
            <source>&amp;Decide Later</source>
            <translation>稍后决定(&amp;D)</translation>
        </message>
        <message>
            <source>Close this window. The job stays held until you print or cancel it.</source>
            <translation>关闭此窗口。任务将一直暂挂，直到您打印或取消它。</translation>
        </message>
        <message>
            <source>A&amp;ll pages</source>
            <translation>所有页面(&amp;L)</translation>
        </message>
        <message>
            <source>Pa&amp;ges:</source>
            <translation>页面(&amp;G)：</translation>
        </message>
        <message>
            <source>1-3, 8</source>
            <translation>1-3, 8</translation>
        </message>
        <message>
            <source>Cop&amp;ies:</source>
            <translation>份数(&amp;I)：</translation>
        </message>
        <message>
            <source>Pages and ranges between commas, for example 1-3, 8, 12-</source>
            <translation>页码和页面范围以逗号分隔，例如 1-3, 8, 12-</translation>
        </message>
        <message>
            <source>The documents cannot be read: their disk does not answer.</source>
            <translation>无法读取文档：所在磁盘没有响应。</translation>
        </message>
        <message>
            <source>Make room on the disk, or ask your administrator whether you may still write the lists</source>
            <translation>请清理磁盘空间，或询问管理员您是否仍有权写入这些列表</translation>
        </message>
        <message>
            <source>Your changes to the profiles were not saved: their list could not be written. %1; then make the changes again.</source>
            <translation>对色彩配置文件的更改未能保存：无法写入列表。%1，然后重新进行更改。</translation>
        </message>
        <message>
            <source>What the printer says of its profiles was not saved: their list could not be written. The profiles are shown as they were. %1; then open this window again.</source>
            <translation>打印机提供的色彩配置文件信息未能保存：无法写入列表。色彩配置文件仍按原样显示。%1，然后重新打开此窗口。</translation>
        </message>
        <message>
            <source>Another choice does not let it stand.</source>
            <translation>另一个选项不允许这样设置。</translation>
        </message>
        <message>
            <source>Close this message</source>
            <translation>关闭此消息</translation>
        </message>
        <message>
            <source>Show All</source>
            <translation>全部显示</translation>
        </message>
        <message>
            <source>Show Less</source>
            <translation>收起</translation>
        </message>
        <message>
            <source>and %1 more</source>
            <translation>还有 %1 条</translation>
        </message>
        <message>
            <source>More Options – %1</source>
            <translation>更多选项 – %1</translation>
        </message>
        <message>
            <source>%1:</source>
            <comment>an option</comment>
            <translation>%1：</translation>
        </message>
        <message>
            <source>Restore De&amp;faults</source>
            <translation>恢复默认设置(&amp;F)</translation>
        </message>
        <message>
            <source>Preview (&amp;1)</source>
            <translation>预览(&amp;1)</translation>
        </message>
        <message>
            <source>Page Up and Page Down turn the pages, Home and End go to the first and the last one.</source>
            <translation>按 Page Up 和 Page Down 翻页，按 Home 和 End 转到首页和末页。</translation>
        </message>
        <message>
            <source>Previous page</source>
            <translation>上一页</translation>
        </message>
        <message>
            <source>Next page</source>
            <translation>下一页</translation>
        </message>
        <message>
            <source>Page in the preview</source>
            <translation>预览中的页码</translation>
        </message>
        <message>
            <source>Pag&amp;e</source>
            <translation>页码(&amp;E)</translation>
        </message>
        <message>
            <source>Add a document to see its pages.</source>
            <translation>添加文档即可查看其页面。</translation>
        </message>
        <message>
            <source>None of the chosen pages is in this document.</source>
            <translation>所选页面均不在此文档中。</translation>
        </message>
        <message>
            <source>This is the first page.</source>
            <translation>这是第一页。</translation>
        </message>
        <message>
            <source>This is the last page.</source>
            <translation>这是最后一页。</translation>
        </message>
        <message>
            <source>There are no pages to choose from.</source>
            <translation>没有可选的页面。</translation>
        </message>
        <message>
            <source>of %1</source>
            <comment>pages of a document</comment>
            <translation>共 %1 页</translation>
        </message>
        <message>
            <source>Show the pages that will be printed</source>
            <translation>显示将要打印的页面</translation>
        </message>
        <message>
            <source>Fold the preview away</source>
            <translation>收起预览</translation>
        </message>
        <message>
            <source>%1 of %2</source>
            <comment>document</comment>
            <translation>第 %1 个，共 %2 个</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>预览</translation>
        </message>
        <message>
            <source>Preview of %1</source>
            <translation>%1 的预览</translation>
        </message>
        <message>
            <source>Preview of %1: %2</source>
            <translation>%1 的预览：%2</translation>
        </message>
        <message>
            <source>Preview, page %1 of %2 of %3</source>
            <translation>预览：%3，第 %1 页，共 %2 页</translation>
        </message>
        <message>
            <source>The options of this printer cannot be shown: the plug-in gives no view. Install it anew.</source>
            <translation>无法显示此打印机的选项：插件没有提供界面。请重新安装插件。</translation>
        </message>
        <message>
            <source>Not all of the choices could be restored. Look them through.</source>
            <translation>部分设置未能恢复，请检查一遍。</translation>
        </message>
        <message>
            <source>%1 is there already and is not ours. Remove it, then try again.</source>
            <translation>%1 已存在，且不属于本程序。请将其移除后再试。</translation>
        </message>
        <message>
            <source>This system's portal goes by files such as %1. Copy the one for your desktop to ~/.config/xdg-desktop-portal, and add this line to its part [preferred]:
org.freedesktop.impl.portal.Print=vnd.brevane.bvprint</source>
            <translation>此系统的桌面门户由 %1 之类的文件配置。请将适用于您桌面环境的文件复制到 ~/.config/xdg-desktop-portal，并在其 [preferred] 部分添加以下一行：
org.freedesktop.impl.portal.Print=vnd.brevane.bvprint</translation>
        </message>
        <message>
            <source>The desktop portal is not installed. Install the package xdg-desktop-portal.</source>
            <translation>未安装桌面门户。请安装软件包 xdg-desktop-portal。</translation>
        </message>
        <message>
            <source>Programs that print through the portal show this dialog from your next login on.</source>
            <translation>从您下次登录起，通过桌面门户打印的程序会显示此对话框。</translation>
        </message>
        <message>
            <source>It is off already.</source>
            <translation>已经处于关闭状态。</translation>
        </message>
        <message>
            <source>%1 cannot be removed.</source>
            <translation>无法移除 %1。</translation>
        </message>
        <message>
            <source>Programs that print through the portal show the desktop's own dialog from your next login on.</source>
            <translation>从您下次登录起，通过桌面门户打印的程序会显示桌面自带的打印对话框。</translation>
        </message>
        <message>
            <source>%1 cannot be used: %2, line %3.</source>
            <translation>%1 无法使用：第 %3 行，%2。</translation>
        </message>
        <message>
            <source>%1 is cut off: %2 is not closed.</source>
            <translation>%1 不完整：“%2”没有结束。</translation>
        </message>
        <message>
            <source>Paper si&amp;ze:</source>
            <translation>纸张大小(&amp;Z)：</translation>
        </message>
        <message>
            <source>Paper size</source>
            <translation>纸张大小</translation>
        </message>
        <message>
            <source>Paper t&amp;ype:</source>
            <translation>纸张类型(&amp;Y)：</translation>
        </message>
        <message>
            <source>Paper type</source>
            <translation>纸张类型</translation>
        </message>
        <message>
            <source>&amp;Tray:</source>
            <translation>纸张来源(&amp;T)：</translation>
        </message>
        <message>
            <source>Tray</source>
            <translation>纸张来源</translation>
        </message>
        <message>
            <source>T&amp;wo-sided:</source>
            <translation>双面打印(&amp;W)：</translation>
        </message>
        <message>
            <source>Two-sided</source>
            <translation>双面打印</translation>
        </message>
        <message>
            <source>Resolutio&amp;n:</source>
            <translation>分辨率(&amp;N)：</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>分辨率</translation>
        </message>
        <message>
            <source>General settings</source>
            <translation>常规设置</translation>
        </message>
        <message>
            <source>M&amp;ore Options…</source>
            <translation>更多选项(&amp;O)…</translation>
        </message>
        <message>
            <source>M&amp;ore Options (%1 changed)…</source>
            <translation>更多选项（已更改 %1 项）(&amp;O)…</translation>
        </message>
        <message>
            <source>All other options of this printer</source>
            <translation>此打印机的所有其他选项</translation>
        </message>
        <message>
            <source>The PPD %1</source>
            <translation>PPD %1</translation>
        </message>
        <message>
            <source>Printer's defaults</source>
            <translation>打印机默认设置</translation>
        </message>
        <message>
            <source>Presets (*.json)</source>
            <translation>预设 (*.json)</translation>
        </message>
        <message>
            <source>“%1”</source>
            <comment>a preset</comment>
            <translation>“%1”</translation>
        </message>
        <message>
            <source>The Printer's &amp;Defaults</source>
            <translation>打印机默认设置(&amp;D)</translation>
        </message>
        <message>
            <source>As &amp;Last Time</source>
            <translation>与上次相同(&amp;L)</translation>
        </message>
        <message>
            <source>&amp;Save as Preset…</source>
            <translation>另存为预设(&amp;S)…</translation>
        </message>
        <message>
            <source>%1…</source>
            <comment>a preset</comment>
            <translation>%1…</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>重命名(&amp;R)</translation>
        </message>
        <message>
            <source>D&amp;elete</source>
            <translation>删除(&amp;E)</translation>
        </message>
        <message>
            <source>E&amp;xport</source>
            <translation>导出(&amp;X)</translation>
        </message>
        <message>
            <source>&amp;Import…</source>
            <translation>导入(&amp;I)…</translation>
        </message>
        <message>
            <source>As last time</source>
            <translation>与上次相同</translation>
        </message>
        <message>
            <source>As in your last job.</source>
            <translation>与您上次的打印任务相同。</translation>
        </message>
        <message>
            <source>%1: all settings were so already.</source>
            <translation>%1：设置没有变化。</translation>
        </message>
        <message>
            <source>%1: one setting changed.</source>
            <translation>%1：更改了 1 项设置。</translation>
        </message>
        <message>
            <source>%1: %2 settings changed.</source>
            <translation>%1：更改了 %2 项设置。</translation>
        </message>
        <message>
            <source>Not used:</source>
            <translation>未采用：</translation>
        </message>
        <message>
            <source>and %1 more.</source>
            <translation>还有 %1 项。</translation>
        </message>
        <message>
            <source>Pre&amp;set: %1, changed</source>
            <translation>预设(&amp;S)：%1（已更改）</translation>
        </message>
        <message>
            <source>Pre&amp;set: %1</source>
            <translation>预设(&amp;S)：%1</translation>
        </message>
        <message>
            <source>Start from the printer's defaults, from the last job or from choices that you saved</source>
            <translation>使用打印机的默认设置、上次的打印设置或您保存的设置</translation>
        </message>
        <message>
            <source>Save as Preset</source>
            <translation>另存为预设</translation>
        </message>
        <message>
            <source>There is a preset “%1” already. Replace it?</source>
            <translation>已有名为“%1”的预设。要替换吗？</translation>
        </message>
        <message>
            <source>&amp;Replace</source>
            <translation>替换(&amp;R)</translation>
        </message>
        <message>
            <source>The choices are saved as “%1”, for the printer “%2”. Copies and pages belong to each job.</source>
            <translation>设置已保存为“%1”，用于打印机“%2”。份数和页面不会保存，每次打印时另行设置。</translation>
        </message>
        <message>
            <source>Rename Preset</source>
            <translation>重命名预设</translation>
        </message>
        <message>
            <source>The preset “%1” is called “%2” now.</source>
            <translation>预设“%1”已重命名为“%2”。</translation>
        </message>
        <message>
            <source>Delete Preset</source>
            <translation>删除预设</translation>
        </message>
        <message>
            <source>Delete the preset “%1” of “%2”? What is chosen now stays.</source>
            <translation>要删除“%2”的预设“%1”吗？当前设置保持不变。</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>删除(&amp;D)</translation>
        </message>
        <message>
            <source>Choices of “%1”</source>
            <translation>“%1”的设置</translation>
        </message>
        <message>
            <source>The preset “%1” is deleted.</source>
            <translation>预设“%1”已删除。</translation>
        </message>
        <message>
            <source>Export Preset</source>
            <translation>导出预设</translation>
        </message>
        <message>
            <source>The preset “%1” is exported to %2.</source>
            <translation>预设“%1”已导出到 %2。</translation>
        </message>
        <message>
            <source>The preset “%1” could not be exported: %2: %3. Export it to a folder that you may write.</source>
            <translation>未能将预设“%1”导出到 %2：%3。请导出到您有权写入的文件夹。</translation>
        </message>
        <message>
            <source>Import Preset</source>
            <translation>导入预设</translation>
        </message>
        <message>
            <source>;;All files (*)</source>
            <translation>;;所有文件 (*)</translation>
        </message>
        <message>
            <source>Choose a file that was exported as a preset.</source>
            <translation>请选择作为预设导出的文件。</translation>
        </message>
        <message>
            <source>%1 is imported and used</source>
            <comment>a preset</comment>
            <translation>已导入并采用%1</translation>
        </message>
        <message>
            <source>%1 is imported and used as %2, since there is one of that name</source>
            <translation>已有同名预设，%1已导入为%2并采用</translation>
        </message>
        <message>
            <source>There is no preset “%1” for the printer “%2”.</source>
            <translation>打印机“%2”没有预设“%1”。</translation>
        </message>
        <message>
            <source>The preset “%1” could not be saved: %2: %3. %4</source>
            <translation>未能将预设“%1”保存到 %2：%3。%4</translation>
        </message>
        <message>
            <source>There is a preset “%1” already. Choose another name, or delete it first.</source>
            <translation>已有名为“%1”的预设。请换一个名称，或先将其删除。</translation>
        </message>
        <message>
            <source>The preset “%1” could not be renamed: %2: %3. %4</source>
            <translation>未能重命名预设“%1”（%2）：%3。%4</translation>
        </message>
        <message>
            <source>The preset “%1” could not be deleted: %2: %3. %4</source>
            <translation>未能删除预设“%1”（%2）：%3。%4</translation>
        </message>
        <message>
            <source>Looking for printers…</source>
            <translation>正在查找打印机…</translation>
        </message>
        <message>
            <source>There is no printer. Add one in the system's printer settings, then look again.</source>
            <translation>没有打印机。请在系统的打印机设置中添加，然后重新查找。</translation>
        </message>
        <message>
            <source>Look &amp;Again</source>
            <translation>重新查找(&amp;A)</translation>
        </message>
        <message>
            <source>There is no printer “%1”. Choose one from the list.</source>
            <translation>没有打印机“%1”。请从列表中选择。</translation>
        </message>
        <message>
            <source>The options of “%1” are being prepared…</source>
            <translation>正在准备“%1”的选项…</translation>
        </message>
        <message>
            <source>Try &amp;Again</source>
            <translation>重试(&amp;A)</translation>
        </message>
        <message>
            <source>This printer is stopped. You can print all the same: it keeps the job and prints it once it is resumed.</source>
            <translation>此打印机已停止。您仍然可以打印：打印机会保留任务，恢复运行后再打印。</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>打印</translation>
        </message>
        <message>
            <source>Print – %1 documents</source>
            <translation>打印 – %1 个文档</translation>
        </message>
        <message>
            <source>The job is being sent…</source>
            <translation>正在发送打印任务…</translation>
        </message>
        <message>
            <source>The printer's options are being prepared…</source>
            <translation>正在准备打印机的选项…</translation>
        </message>
        <message>
            <source>Choose a printer first.</source>
            <translation>请先选择打印机。</translation>
        </message>
        <message>
            <source>This printer cannot be used. Choose another one.</source>
            <translation>此打印机无法使用。请选择其他打印机。</translation>
        </message>
        <message>
            <source>This printer is no longer there. Choose another one.</source>
            <translation>此打印机已不存在。请选择其他打印机。</translation>
        </message>
        <message>
            <source>Add a document to print.</source>
            <translation>请添加要打印的文档。</translation>
        </message>
        <message>
            <source>Some choices do not go together, and the printer would not follow all of them:

%1

Cancel, and settle it by the buttons above Print, or print all the same.</source>
            <translation>有些设置不能同时使用，打印机不会全部执行：

%1

请点击“取消”，再用“打印”上方的按钮处理；也可以选择“仍然打印”。</translation>
        </message>
        <message>
            <source>Print &amp;Anyway</source>
            <translation>仍然打印(&amp;A)</translation>
        </message>
        <message>
            <source>The job is being canceled…</source>
            <translation>正在取消打印任务…</translation>
        </message>
        <message>
            <source>As given</source>
            <translation>按指定设置</translation>
        </message>
        <message>
            <source>My defaults</source>
            <translation>我的默认设置</translation>
        </message>
        <message>
            <source>As sent</source>
            <translation>按发送时的设置</translation>
        </message>
        <message>
            <source>From the ticket that was given.</source>
            <translation>采用启动时指定的打印设置。</translation>
        </message>
        <message>
            <source>Your own default.</source>
            <translation>您自己的默认设置。</translation>
        </message>
        <message>
            <source>As the job was sent.</source>
            <translation>与任务发送时相同。</translation>
        </message>
        <message>
            <source>You have no defaults called “%1”. The printer's own are shown.</source>
            <translation>您没有名为“%1”的默认设置，因此显示打印机的默认设置。</translation>
        </message>
        <message>
            <source>S&amp;ummary</source>
            <translation>摘要(&amp;U)</translation>
        </message>
        <message>
            <source>Put all of the printer's settings back to what its driver proposes</source>
            <translation>将打印机的所有设置恢复为驱动程序的建议值</translation>
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation>取消(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>打印(&amp;P)</translation>
        </message>
        <message>
            <source>Print the documents with these settings</source>
            <translation>用这些设置打印文档</translation>
        </message>
        <message>
            <source>There is no default printer; name one with --queue.</source>
            <translation>没有默认打印机；请用 --queue 指定一台。</translation>
        </message>
        <message>
            <source>The print server has no printer %1.</source>
            <translation>打印服务器上没有打印机 %1。</translation>
        </message>
        <message>
            <source>The driver of the printer %1</source>
            <translation>打印机 %1 的驱动程序</translation>
        </message>
        <message>
            <source>The printer %1 has no driver. Add it again in the system's printer settings, with its driver.</source>
            <translation>打印机 %1 没有驱动程序。请在系统的打印机设置中重新添加它，并选择其驱动程序。</translation>
        </message>
        <message>
            <source>%1 cannot be had: %2</source>
            <translation>无法获取%1：%2</translation>
        </message>
        <message>
            <source>Printers</source>
            <translation>打印机</translation>
        </message>
        <message>
            <source>Find by name, description or place</source>
            <translation>按名称、描述或位置查找</translation>
        </message>
        <message>
            <source>Find a printer by name, description or place</source>
            <translation>按名称、描述或位置查找打印机</translation>
        </message>
        <message>
            <source>No printer has “%1” in its name, description or place. Try fewer letters.</source>
            <translation>没有打印机的名称、描述或位置包含“%1”。请少输入几个字。</translation>
        </message>
        <message>
            <source>Printer</source>
            <translation>打印机</translation>
        </message>
        <message>
            <source>P&amp;rinter:</source>
            <translation>打印机(&amp;R)：</translation>
        </message>
        <message>
            <source>No printer</source>
            <translation>没有打印机</translation>
        </message>
        <message>
            <source>%1: no color options</source>
            <translation>%1：没有色彩选项</translation>
        </message>
        <message>
            <source>“%1” has no color options: its driver does not offer any that this dialog knows. You can print with its other settings.</source>
            <translation>“%1”没有色彩选项：其驱动程序不提供此对话框支持的选项。您可以使用其他设置打印。</translation>
        </message>
        <message>
            <source>“%1” has no color options: the plug-in offers none. Install it anew to have them.</source>
            <translation>“%1”没有色彩选项：插件没有提供。重新安装插件即可使用。</translation>
        </message>
        <message>
            <source>The choices of “%1” could not be kept.</source>
            <translation>未能保存“%1”的设置。</translation>
        </message>
        <message>
            <source>Cancel &amp;Job</source>
            <translation>取消任务(&amp;J)</translation>
        </message>
        <message>
            <source>Progress of sending</source>
            <translation>发送进度</translation>
        </message>
        <message>
            <source>Stop sending the job; the dialog stays as it is</source>
            <translation>停止发送打印任务；对话框保持不变</translation>
        </message>
        <message>
            <source>Sending: %1 of %2</source>
            <translation>正在发送：%1，共 %2</translation>
        </message>
        <message>
            <source>Sending…</source>
            <translation>正在发送…</translation>
        </message>
        <message>
            <source>The print server %1 broke off its answer.</source>
            <translation>打印服务器 %1 的应答中断了。</translation>
        </message>
        <message>
            <source>The document is too large.</source>
            <translation>文档过大。</translation>
        </message>
        <message>
            <source>The print server %1 gave an answer that cannot be read.</source>
            <translation>无法读取打印服务器 %1 的应答。</translation>
        </message>
        <message>
            <source>The print server %1 does not let you in; ask who looks after it.</source>
            <translation>打印服务器 %1 不允许您访问；请联系打印机管理员。</translation>
        </message>
        <message>
            <source>The print server %1 refuses to answer: %2.</source>
            <translation>打印服务器 %1 拒绝应答：%2。</translation>
        </message>
        <message>
            <source>Drawing the page…</source>
            <translation>正在绘制页面…</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>是</translation>
        </message>
        <message>
            <source>No</source>
            <translation>否</translation>
        </message>
        <message>
            <source>Summary</source>
            <translation>摘要</translation>
        </message>
        <message>
            <source>Setting</source>
            <translation>设置</translation>
        </message>
        <message>
            <source>Choice</source>
            <translation>当前值</translation>
        </message>
        <message>
            <source>There is nothing to sum up.</source>
            <translation>没有可汇总的内容。</translation>
        </message>
        <message>
            <source>All as the printer proposes.</source>
            <translation>全部采用打印机的默认设置。</translation>
        </message>
        <message>
            <source>“%1” cannot be the name of defaults: use letters, digits, “-”, “_” and “.” only.</source>
            <translation>“%1”不能用作默认设置的名称：只能使用汉字、字母、数字、“-”、“_”和“.”。</translation>
        </message>
        <message>
            <source>Your present defaults could not be kept, so they were not replaced.</source>
            <translation>无法备份您当前的默认设置，因此未作替换。</translation>
        </message>
        <message>
            <source>There are no earlier defaults of “%1”.</source>
            <translation>“%1”没有可供恢复的默认设置。</translation>
        </message>
        <message>
            <source>W&amp;hy Is It Gray?</source>
            <translation>为何不可用(&amp;H)？</translation>
        </message>
        <message>
            <source>Lists the controls that cannot be used now, and what makes them available</source>
            <translation>列出目前不可用的控件，并说明如何使其可用</translation>
        </message>
        <message>
            <source>Controls that cannot be used now</source>
            <translation>目前不可用的控件</translation>
        </message>
        <message>
            <source>%1: %2</source>
            <comment>name of a control, why it is gray</comment>
            <translation>%1：%2</translation>
        </message>
    </context>
</TS>
