<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>FrameLayout</name>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>最近的工程(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>工程(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;New Project...</source>
        <translation>新建工程(&amp;N)...</translation>
    </message>
    <message>
        <source>Create a project: its folder, database and coordinate system</source>
        <translation>新建工程：建立工程文件夹、数据库和坐标系统</translation>
    </message>
    <message>
        <source>&amp;Open Project...</source>
        <translation>打开工程(&amp;O)...</translation>
    </message>
    <message>
        <source>Open a project file</source>
        <translation>打开工程文件</translation>
    </message>
    <message>
        <source>&amp;Save Project</source>
        <translation>保存工程(&amp;S)</translation>
    </message>
    <message>
        <source>Save design, survey results and limits to the project database</source>
        <translation>把设计数据、测量成果和质量限差保存到工程数据库</translation>
    </message>
    <message>
        <source>Save a Cop&amp;y As...</source>
        <translation>另存副本(&amp;Y)...</translation>
    </message>
    <message>
        <source>Save the whole project, as it is now, in another folder</source>
        <translation>把整个工程按当前内容另存到其他文件夹</translation>
    </message>
    <message>
        <source>Print / Export &amp;Map...</source>
        <translation>打印/导出地图(&amp;M)...</translation>
    </message>
    <message>
        <source>Put what the map shows on paper, at a scale: PDF, picture, GeoTIFF or printer</source>
        <translation>把地图上显示的内容按比例尺输出到图纸：PDF、图片、GeoTIFF 或打印机</translation>
    </message>
    <message>
        <source>&amp;Close Project</source>
        <translation>关闭工程(&amp;C)</translation>
    </message>
    <message>
        <source>Close the project, saving it first if you wish</source>
        <translation>关闭工程，关闭前可先保存</translation>
    </message>
    <message>
        <source>&amp;Project Settings...</source>
        <translation>工程设置(&amp;P)...</translation>
    </message>
    <message>
        <source>General information and coordinate system of the project</source>
        <translation>工程的基本信息和坐标系统</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>Leave the program</source>
        <translation>退出程序</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Take the last change of points or parameters back</source>
        <translation>撤销对点或参数的上一次更改</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Do the change again that was taken back last</source>
        <translation>重做上一次撤销的更改</translation>
    </message>
    <message>
        <source>&amp;Steps...</source>
        <translation>操作步骤(&amp;S)...</translation>
    </message>
    <message>
        <source>List the changes that can be taken back, and go to any of them</source>
        <translation>列出可以撤销的更改，并转到其中任何一步</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>历史记录(&amp;H)...</translation>
    </message>
    <message>
        <source>Who changed what and when; the life of one point; restore what was deleted or changed</source>
        <translation>谁在何时更改了什么；一个点的经历；恢复被删除或更改的内容</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>查找(&amp;F)...</translation>
    </message>
    <message>
        <source>Find lines and points by their numbers, in design and survey</source>
        <translation>按线号、点号在设计和测量数据中查找</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>查找下一个(&amp;N)</translation>
    </message>
    <message>
        <source>Go to the next line or point found</source>
        <translation>转到下一个找到的测线或点</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>查找上一个(&amp;P)</translation>
    </message>
    <message>
        <source>Go to the line or point found before</source>
        <translation>转到上一个找到的测线或点</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Design View</source>
        <translation>设计视图(&amp;D)</translation>
    </message>
    <message>
        <source>Show the design lines and points on the map</source>
        <translation>在地图上显示设计测线和设计点</translation>
    </message>
    <message>
        <source>&amp;Survey View</source>
        <translation>测量视图(&amp;S)</translation>
    </message>
    <message>
        <source>Show the survey results, base stations and offsets on the map</source>
        <translation>在地图上显示测量成果、基准站和偏移</translation>
    </message>
    <message>
        <source>&amp;Receiver Lines</source>
        <translation>接收线(&amp;R)</translation>
    </message>
    <message>
        <source>Show or hide the receiver lines of the design</source>
        <translation>显示或隐藏设计的接收线</translation>
    </message>
    <message>
        <source>S&amp;ource Lines</source>
        <translation>激发线(&amp;O)</translation>
    </message>
    <message>
        <source>Show or hide the source lines of the design</source>
        <translation>显示或隐藏设计的激发线</translation>
    </message>
    <message>
        <source>Survey &amp;Boundary</source>
        <translation>工区边界(&amp;B)</translation>
    </message>
    <message>
        <source>Resul&amp;t Colours</source>
        <translation>成果着色(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>无(&amp;N)</translation>
    </message>
    <message>
        <source>Show the results on the map in red, and the table without colours</source>
        <translation>地图上的成果为红色，列表不着色</translation>
    </message>
    <message>
        <source>&amp;Verdict</source>
        <translation>结论(&amp;V)</translation>
    </message>
    <message>
        <source>Colour the results by what is wrong with them, on the survey map and in the table</source>
        <translation>在测量视图和列表中，按成果存在的问题着色</translation>
    </message>
    <message>
        <source>&amp;Solution Type</source>
        <translation>解类型(&amp;S)</translation>
    </message>
    <message>
        <source>Colour the results by their solution, on the survey map and in the table</source>
        <translation>在测量视图和列表中，按解类型着色</translation>
    </message>
    <message>
        <source>&amp;Horizontal Accuracy (HRMS)</source>
        <translation>水平精度 (HRMS)(&amp;H)</translation>
    </message>
    <message>
        <source>Colour the results by their HRMS, on the survey map and in the table</source>
        <translation>在测量视图和列表中，按 HRMS 着色</translation>
    </message>
    <message>
        <source>S&amp;urveyor</source>
        <translation>测量员(&amp;U)</translation>
    </message>
    <message>
        <source>Colour the results by who measured them, on the survey map and in the table</source>
        <translation>在测量视图和列表中，按测量员着色</translation>
    </message>
    <message>
        <source>&amp;Rover</source>
        <translation>流动站(&amp;R)</translation>
    </message>
    <message>
        <source>Colour the results by the rover, on the survey map and in the table</source>
        <translation>在测量视图和列表中，按流动站着色</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>日期(&amp;D)</translation>
    </message>
    <message>
        <source>Colour the results of the last seven days, on the survey map and in the table</source>
        <translation>在测量视图和列表中，给最近七天的成果着色</translation>
    </message>
    <message>
        <source>Results on the M&amp;ap</source>
        <translation>地图上的成果(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Lines to the Base Stations</source>
        <translation>到基准站的连线(&amp;L)</translation>
    </message>
    <message>
        <source>Show or hide the line from each result to its base station</source>
        <translation>显示或隐藏每个成果到其基准站的连线</translation>
    </message>
    <message>
        <source>&amp;Offsets from the Design</source>
        <translation>与设计位置的偏移(&amp;O)</translation>
    </message>
    <message>
        <source>Show or hide the design position of each result, and the line to it</source>
        <translation>显示或隐藏每个成果的设计位置及到它的连线</translation>
    </message>
    <message>
        <source>&amp;All Names</source>
        <translation>全部点名(&amp;A)</translation>
    </message>
    <message>
        <source>Write the name of every result</source>
        <translation>显示每个成果的点名</translation>
    </message>
    <message>
        <source>Names Where There Is &amp;Room</source>
        <translation>放得下的点名(&amp;R)</translation>
    </message>
    <message>
        <source>Write names so that none covers another</source>
        <translation>只显示互不遮挡的点名</translation>
    </message>
    <message>
        <source>&amp;No Names</source>
        <translation>不显示点名(&amp;N)</translation>
    </message>
    <message>
        <source>Write no names</source>
        <translation>不显示点名</translation>
    </message>
    <message>
        <source>Show or hide the rectangle around the survey</source>
        <translation>显示或隐藏工区的外接矩形</translation>
    </message>
    <message>
        <source>Coordinate &amp;Format</source>
        <translation>坐标格式(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Degree Format</source>
        <translation>十进制度(&amp;D)</translation>
    </message>
    <message>
        <source>Latitudes and longitudes in decimal degrees</source>
        <translation>经纬度以十进制度显示</translation>
    </message>
    <message>
        <source>Degree-&amp;minute-second Format</source>
        <translation>度分秒(&amp;M)</translation>
    </message>
    <message>
        <source>Latitudes and longitudes in degrees, minutes and seconds</source>
        <translation>经纬度以度、分、秒显示</translation>
    </message>
    <message>
        <source>Survey &amp;Columns...</source>
        <translation>测量列表列(&amp;C)...</translation>
    </message>
    <message>
        <source>Choose the columns of the survey table and of exported files</source>
        <translation>选择测量列表和导出文件的列</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>窗口(&amp;W)</translation>
    </message>
    <message>
        <source>Go to &amp;Map</source>
        <translation>转到地图(&amp;M)</translation>
    </message>
    <message>
        <source>Go to &amp;Survey Table</source>
        <translation>转到测量数据列表(&amp;S)</translation>
    </message>
    <message>
        <source>Go to &amp;Design Table</source>
        <translation>转到设计测线列表(&amp;D)</translation>
    </message>
    <message>
        <source>Go to Survey &amp;Lines</source>
        <translation>转到测量测线(&amp;L)</translation>
    </message>
    <message>
        <source>Go to Design L&amp;ines</source>
        <translation>转到设计测线(&amp;I)</translation>
    </message>
    <message>
        <source>Go to &amp;Attributes</source>
        <translation>转到属性(&amp;A)</translation>
    </message>
    <message>
        <source>Go to M&amp;essages</source>
        <translation>转到消息(&amp;E)</translation>
    </message>
    <message>
        <source>Go to &amp;Problems</source>
        <translation>转到问题列表(&amp;P)</translation>
    </message>
    <message>
        <source>Go to S&amp;tatistics</source>
        <translation>转到统计(&amp;T)</translation>
    </message>
    <message>
        <source>Reset &amp;Layout</source>
        <translation>恢复默认布局(&amp;L)</translation>
    </message>
    <message>
        <source>Put every window back to its first place</source>
        <translation>把所有窗口恢复到默认位置</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>全屏(&amp;U)</translation>
    </message>
    <message>
        <source>Give the program the whole screen</source>
        <translation>程序占满整个屏幕</translation>
    </message>
    <message>
        <source>&amp;Checks</source>
        <translation>检查(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Find Problems</source>
        <translation>查找问题(&amp;F)</translation>
    </message>
    <message>
        <source>Run everything that is on and list what is wrong with design and results</source>
        <translation>运行所有已启用的检查，列出设计和成果的一切问题</translation>
    </message>
    <message>
        <source>&amp;Next Problem</source>
        <translation>下一个问题(&amp;N)</translation>
    </message>
    <message>
        <source>Go to the next problem; map, table and attributes show its point</source>
        <translation>转到下一个问题；地图、列表和属性显示它的点</translation>
    </message>
    <message>
        <source>Previo&amp;us Problem</source>
        <translation>上一个问题(&amp;U)</translation>
    </message>
    <message>
        <source>Go to the problem before</source>
        <translation>转到上一个问题</translation>
    </message>
    <message>
        <source>Quality &amp;Limits...</source>
        <translation>质量规范(&amp;L)...</translation>
    </message>
    <message>
        <source>Set the limits that every survey result is judged by</source>
        <translation>设置检查测量成果所用的限差</translation>
    </message>
    <message>
        <source>&amp;Quality Check</source>
        <translation>数据检查(&amp;Q)</translation>
    </message>
    <message>
        <source>Judge every survey result by the limits and list the failures</source>
        <translation>按限差检查全部测量成果并列出不合格项</translation>
    </message>
    <message>
        <source>&amp;Empty Point Check</source>
        <translation>空点检查(&amp;E)</translation>
    </message>
    <message>
        <source>Find the design points that were never surveyed</source>
        <translation>查找没有测量成果的设计点</translation>
    </message>
    <message>
        <source>&amp;Resurvey Check</source>
        <translation>复测点检查(&amp;R)</translation>
    </message>
    <message>
        <source>Compare resurveyed points with their first measurement</source>
        <translation>比较复测点与首次测量的差值</translation>
    </message>
    <message>
        <source>Re&amp;peat Point Check</source>
        <translation>重复点检查(&amp;P)</translation>
    </message>
    <message>
        <source>Find points that were measured more than once</source>
        <translation>查找重复测量的点</translation>
    </message>
    <message>
        <source>Resol&amp;ve Repeats...</source>
        <translation>重复测量取舍(&amp;V)...</translation>
    </message>
    <message>
        <source>Keep one result of each point that was measured more than once</source>
        <translation>对多次测量的点只保留一个成果</translation>
    </message>
    <message>
        <source>&amp;Design</source>
        <translation>设计(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Generate Lines...</source>
        <translation>设计测线(&amp;G)...</translation>
    </message>
    <message>
        <source>Generate receiver and source lines from a few parameters</source>
        <translation>由少量参数生成接收线和激发线</translation>
    </message>
    <message>
        <source>E&amp;xchange</source>
        <translation>数据交换(&amp;X)</translation>
    </message>
    <message>
        <source>Import &amp;Design CSV...</source>
        <translation>导入设计 CSV(&amp;D)...</translation>
    </message>
    <message>
        <source>Add the design points of a CSV file to the project</source>
        <translation>把 CSV 文件中的设计点加入工程</translation>
    </message>
    <message>
        <source>&amp;Import Survey CSV...</source>
        <translation>导入测量 CSV(&amp;I)...</translation>
    </message>
    <message>
        <source>Add the survey results of a CSV file to the project</source>
        <translation>把 CSV 文件中的测量成果加入工程</translation>
    </message>
    <message>
        <source>Import Survey Data&amp;base...</source>
        <translation>导入测量数据库(&amp;B)...</translation>
    </message>
    <message>
        <source>Add the survey results of another project&apos;s database to the project</source>
        <translation>把另一工程数据库中的测量成果加入工程</translation>
    </message>
    <message>
        <source>&amp;Export Report...</source>
        <translation>导出报告(&amp;E)...</translation>
    </message>
    <message>
        <source>Write the quality, statistics, rover and result reports as workbooks, and the daily report as PDF</source>
        <translation>把质量、统计、流动站和成果报告写成工作簿，把日报写成 PDF</translation>
    </message>
    <message>
        <source>Export Desi&amp;gn</source>
        <translation>导出设计数据(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;CSV File...</source>
        <translation>CSV 文件(&amp;C)...</translation>
    </message>
    <message>
        <source>Write all points of the design as a CSV file</source>
        <translation>把全部设计点写成 CSV 文件</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>数据库(&amp;D)...</translation>
    </message>
    <message>
        <source>Write all points of the design into a new project database</source>
        <translation>把全部设计点写入新的工程数据库</translation>
    </message>
    <message>
        <source>&amp;KML File...</source>
        <translation>KML 文件(&amp;K)...</translation>
    </message>
    <message>
        <source>Write all points of the design for viewing on a globe</source>
        <translation>把全部设计点写成可在三维地球上查看的文件</translation>
    </message>
    <message>
        <source>&amp;Unsurveyed as CSV File...</source>
        <translation>未测点 CSV 文件(&amp;U)...</translation>
    </message>
    <message>
        <source>Write the points that are not surveyed yet as a CSV file</source>
        <translation>把尚未测量的设计点写成 CSV 文件</translation>
    </message>
    <message>
        <source>Unsurveyed as D&amp;atabase...</source>
        <translation>未测点数据库(&amp;A)...</translation>
    </message>
    <message>
        <source>Write the points that are not surveyed yet into a new project database</source>
        <translation>把尚未测量的设计点写入新的工程数据库</translation>
    </message>
    <message>
        <source>Unsurveyed as K&amp;ML File...</source>
        <translation>未测点 KML 文件(&amp;M)...</translation>
    </message>
    <message>
        <source>Write the points that are not surveyed yet for viewing on a globe</source>
        <translation>把尚未测量的设计点写成可在三维地球上查看的文件</translation>
    </message>
    <message>
        <source>Export S&amp;urvey Results</source>
        <translation>导出测量成果(&amp;U)</translation>
    </message>
    <message>
        <source>Write all survey results, with the chosen columns, as a CSV file</source>
        <translation>把全部测量成果按所选列写成 CSV 文件</translation>
    </message>
    <message>
        <source>Write all survey results for viewing on a globe</source>
        <translation>把全部测量成果写成可在三维地球上查看的文件</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>地图(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Move Map</source>
        <translation>地图移动(&amp;M)</translation>
    </message>
    <message>
        <source>Drag the map; right click ends it</source>
        <translation>拖动地图；单击右键结束</translation>
    </message>
    <message>
        <source>Zoom to &amp;Rectangle</source>
        <translation>局部矩形放大(&amp;R)</translation>
    </message>
    <message>
        <source>Draw a rectangle to zoom to; right click ends it</source>
        <translation>画矩形放大到该范围；单击右键结束</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Come nearer</source>
        <translation>放大地图</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Step back</source>
        <translation>缩小地图</translation>
    </message>
    <message>
        <source>Zoom to &amp;All</source>
        <translation>全图(&amp;A)</translation>
    </message>
    <message>
        <source>Show the whole survey</source>
        <translation>显示整个工区</translation>
    </message>
    <message>
        <source>O&amp;nline Map</source>
        <translation>在线地图(&amp;N)</translation>
    </message>
    <message>
        <source>Show or hide the online base map</source>
        <translation>显示或隐藏在线底图</translation>
    </message>
    <message>
        <source>&amp;Base Map</source>
        <translation>底图(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Road Map</source>
        <translation>平面地图(&amp;R)</translation>
    </message>
    <message>
        <source>Roads and places</source>
        <translation>道路和地名</translation>
    </message>
    <message>
        <source>&amp;Satellite Map</source>
        <translation>卫星地图(&amp;S)</translation>
    </message>
    <message>
        <source>Satellite pictures</source>
        <translation>卫星影像</translation>
    </message>
    <message>
        <source>&amp;Terrain Map</source>
        <translation>山地地图(&amp;T)</translation>
    </message>
    <message>
        <source>Terrain with contour lines</source>
        <translation>带等高线的地形</translation>
    </message>
    <message>
        <source>&amp;Manage...</source>
        <translation>管理(&amp;M)...</translation>
    </message>
    <message>
        <source>Add, change and hide base maps, and clear the tiles that are kept</source>
        <translation>添加、修改和隐藏底图，清除保留的瓦片</translation>
    </message>
    <message>
        <source>O&amp;verlay Image...</source>
        <translation>TIF 图叠加(&amp;V)...</translation>
    </message>
    <message>
        <source>Lay a georeferenced TIFF picture under the survey</source>
        <translation>在工区下叠加带地理坐标的 TIFF 图像</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Azimuth Calculator...</source>
        <translation>方位角计算(&amp;A)...</translation>
    </message>
    <message>
        <source>Azimuth and distance between two points</source>
        <translation>计算两点间的方位角和距离</translation>
    </message>
    <message>
        <source>Time &amp;Zone...</source>
        <translation>时区(&amp;Z)...</translation>
    </message>
    <message>
        <source>The time zone in which survey times are shown</source>
        <translation>显示测量时间所用的时区</translation>
    </message>
    <message>
        <source>Coordinate &amp;Unit</source>
        <translation>坐标单位(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Metres</source>
        <translation>米(&amp;M)</translation>
    </message>
    <message>
        <source>Show the cursor position in metres</source>
        <translation>以米显示光标位置</translation>
    </message>
    <message>
        <source>&amp;Feet</source>
        <translation>英尺(&amp;F)</translation>
    </message>
    <message>
        <source>Show the cursor position in feet</source>
        <translation>以英尺显示光标位置</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Language of the System</source>
        <translation>跟随系统(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;English</source>
        <translation>English(&amp;E)</translation>
    </message>
    <message>
        <source>简体中文(&amp;C)</source>
        <translation>简体中文(&amp;C)</translation>
    </message>
    <message>
        <source>A&amp;ppearance</source>
        <translation>外观(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;As the Desktop</source>
        <translation>跟随桌面(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message>
        <source>Show All &amp;Questions Again</source>
        <translation>恢复显示所有提问(&amp;Q)</translation>
    </message>
    <message>
        <source>Show all questions and messages again that you chose not to see</source>
        <translation>重新显示您选择不再显示的提问和消息</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Help/user-guide.md</source>
        <translation>Help/user-guide_zh_CN.md</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>用户指南(&amp;U)</translation>
    </message>
    <message>
        <source>The main job in ten minutes, with pictures</source>
        <translation>十分钟图文上手</translation>
    </message>
    <message>
        <source>&amp;Shortcuts</source>
        <translation>快捷键(&amp;S)</translation>
    </message>
    <message>
        <source>List the keys of all commands, to copy or to print</source>
        <translation>列出全部命令的快捷键，可复制或打印</translation>
    </message>
    <message>
        <source>&amp;Demo Survey...</source>
        <translation>示例工程(&amp;D)...</translation>
    </message>
    <message>
        <source>Make or open a survey with known faults, to try everything on</source>
        <translation>建立或打开带有已知错误的示例工程，用来试用各项功能</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Version of the program</source>
        <translation>程序版本</translation>
    </message>
    <message>
        <source>Project Tools</source>
        <translation>工程工具</translation>
    </message>
    <message>
        <source>View Tools</source>
        <translation>视图工具</translation>
    </message>
    <message>
        <source>Map Tools</source>
        <translation>地图工具</translation>
    </message>
    <message>
        <source>Check Tools</source>
        <translation>检查工具</translation>
    </message>
    <message>
        <source>Design and Tools</source>
        <translation>设计与工具</translation>
    </message>
    <message>
        <source>Window Tools</source>
        <translation>窗口工具</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>Design Data List</source>
        <translation>设计测线列表</translation>
    </message>
    <message>
        <source>Survey Data List</source>
        <translation>测量数据列表</translation>
    </message>
    <message>
        <source>Problems List</source>
        <translation>问题列表</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Design Lines</source>
        <translation>设计测线</translation>
    </message>
    <message>
        <source>Survey Lines</source>
        <translation>测量测线</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>坐标</translation>
    </message>
    <message>
        <source>Overlay Image</source>
        <translation>TIF 图叠加</translation>
    </message>
    <message>
        <source>Design and Survey</source>
        <translation>设计与测量</translation>
    </message>
    <message>
        <source>Design Line Table</source>
        <translation>设计测线列表</translation>
    </message>
    <message>
        <source>Survey Data Table</source>
        <translation>测量数据列表</translation>
    </message>
</context>
<context>
    <name>ads::CDockWidgetTab</name>
    <message>
        <source>Detach</source>
        <translation>浮动</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close Others</source>
        <translation>关闭其他</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>关闭标签页</translation>
    </message>
</context>
<context>
    <name>ads::CDockAreaTitleBar</name>
    <message>
        <source>List All Tabs</source>
        <translation>列出所有标签页</translation>
    </message>
    <message>
        <source>Detach Group</source>
        <translation>浮动整组</translation>
    </message>
    <message>
        <source>Close Active Tab</source>
        <translation>关闭当前标签页</translation>
    </message>
    <message>
        <source>Close Group</source>
        <translation>关闭整组</translation>
    </message>
    <message>
        <source>Close Other Groups</source>
        <translation>关闭其他组</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>关闭标签页</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>浮动</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
</TS>
