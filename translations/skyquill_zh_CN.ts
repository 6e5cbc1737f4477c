<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AboutCommand</name>
    <message>
        <source>Stake-out data of land seismic surveys</source>
        <translation>陆地地震勘探放样数据处理</translation>
    </message>
</context>
<context>
    <name>AngleText</name>
    <message>
        <source>deg</source>
        <translation>度</translation>
    </message>
    <message>
        <source>min</source>
        <translation>分</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>秒</translation>
    </message>
</context>
<context>
    <name>Applicationx</name>
    <message>
        <source>The window layout &quot;%1&quot; cannot be read (%2). The program has started with the map alone.</source>
        <translation>无法读取窗口布局“%1”（%2）。程序已启动，只有地图窗口。</translation>
    </message>
</context>
<context>
    <name>AttributeControl</name>
    <message>
        <source>%1: %2 (limit %3)</source>
        <translation>%1：%2（限差 %3）</translation>
    </message>
    <message>
        <source>Select a point on the map or in a table.</source>
        <translation>请在地图或表格中选择一个点。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>The heights have stayed as they were.</source>
        <translation>高程保持不变。</translation>
    </message>
    <message>
        <source>The heights are %1 m lower now. The quality is that of the last check.</source>
        <translation>各高程已降低 %1 m。质量仍为上次检查的结果。</translation>
    </message>
    <message>
        <source>The heights are %1 m higher now. The quality is that of the last check.</source>
        <translation>各高程已升高 %1 m。质量仍为上次检查的结果。</translation>
    </message>
    <message>
        <source>surveyed</source>
        <translation>已测</translation>
    </message>
    <message>
        <source>not surveyed</source>
        <translation>未测</translation>
    </message>
    <message>
        <source>&amp;History of This Point</source>
        <translation>此点的历史(&amp;H)</translation>
    </message>
</context>
<context>
    <name>AttributePage</name>
    <message>
        <source>The attributes cannot be shown: the file &quot;%1&quot; cannot be read (%2).</source>
        <translation>无法显示属性：不能读取文件“%1”（%2）。</translation>
    </message>
    <message>
        <source>Esc brings the value back.</source>
        <translation>按 Esc 恢复原值。</translation>
    </message>
</context>
<context>
    <name>BaseDifferencePlot</name>
    <message>
        <source>dE (m)</source>
        <translation>dE (m)</translation>
    </message>
    <message>
        <source>dN (m)</source>
        <translation>dN (m)</translation>
    </message>
    <message>
        <source>dH (m)</source>
        <translation>dH (m)</translation>
    </message>
    <message>
        <source>Points measured twice, by base</source>
        <translation>按基准站的重复测量点</translation>
    </message>
    <message>
        <source>There are no points measured twice.</source>
        <translation>没有重复测量的点。</translation>
    </message>
    <message>
        <source>None of these results measures a point again.</source>
        <translation>这些成果中没有重复测量的点。</translation>
    </message>
    <message>
        <source>Pairs: %1, without a time: %2. East, north and height: later minus first measurement; line: mean of a base, band: two standard deviations about it.</source>
        <translation>点对：%1，无时间：%2。东、北、高：后一次减第一次测量；线：各基准站的平均值，带：其上下两倍标准差。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>tolerance of resurveys: %1 m</source>
        <translation>复测限差：%1 m</translation>
    </message>
</context>
<context>
    <name>BaseMap</name>
    <message>
        <source>A base map needs a name.</source>
        <translation>底图需要一个名称。</translation>
    </message>
    <message>
        <source>A base map needs the text that tells whose map it is.</source>
        <translation>底图需要一段说明地图归属的文字。</translation>
    </message>
    <message>
        <source>Tiles of %1 pixels cannot be shown: 64 to 2048 are possible.</source>
        <translation>无法显示 %1 像素的瓦片：可用范围为 64 至 2048。</translation>
    </message>
    <message>
        <source>The zoom limits %1 and %2 make no range within 0 to %3.</source>
        <translation>缩放级别 %1 和 %2 不构成 0 至 %3 之内的范围。</translation>
    </message>
    <message>
        <source>The greatest zoom %1 is too large for tiles of %2 pixels.</source>
        <translation>对 %2 像素的瓦片，最大缩放级别 %1 过大。</translation>
    </message>
</context>
<context>
    <name>BaseMapAddress</name>
    <message>
        <source>The address holds &quot;%1&quot;, whose meaning is not known.</source>
        <translation>地址中含有“%1”，其含义未知。</translation>
    </message>
    <message>
        <source>The address has no &quot;{%1}&quot;: it must say where zoom {z}, column {x} and row {y} of a tile stand.</source>
        <translation>地址中没有“{%1}”：必须指明瓦片的级别 {z}、列 {x} 和行 {y} 的位置。</translation>
    </message>
    <message>
        <source>The service is asked for the coordinate system &quot;%1&quot;; a base map must be in EPSG:3857 or in a geographic system.</source>
        <translation>向服务请求的坐标系是“%1”；底图必须采用 EPSG:3857 或地理坐标系。</translation>
    </message>
    <message>
        <source>The address names no layer of the service: &quot;LAYERS=...&quot; is missing.</source>
        <translation>地址没有指明服务的图层：缺少“LAYERS=...”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a web address nor a file.</source>
        <translation>“%1”既不是网址，也不是文件。</translation>
    </message>
    <message>
        <source>There is no address.</source>
        <translation>没有地址。</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>没有文件“%1”。</translation>
    </message>
</context>
<context>
    <name>BaseMapForm</name>
    <message>
        <source>&amp;Keep tiles on this computer</source>
        <translation>在本机保留瓦片(&amp;K)</translation>
    </message>
    <message>
        <source>{x}, {y} and {z} stand for the place of a tile, {-y} for rows that are counted from the south. Also the address of a WMS or WMTS service, or a file such as MBTiles.</source>
        <translation>{x}、{y} 和 {z} 表示瓦片的位置，{-y} 表示从南往北计数的行。也可以是 WMS 或 WMTS 服务的地址，或 MBTiles 之类的文件。</translation>
    </message>
    <message>
        <source>Whose map it is, as its terms want it: it stands on the map</source>
        <translation>按使用条款注明的地图来源，会写在地图上</translation>
    </message>
    <message>
        <source>As the terms of the service allow</source>
        <translation>以服务的使用条款为准</translation>
    </message>
    <message>
        <source>The service learns which part of the world is looked at</source>
        <translation>该服务会知道正在查看的地区</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>K&amp;ind:</source>
        <translation>类型(&amp;I)：</translation>
    </message>
    <message>
        <source>A&amp;ddress or file:</source>
        <translation>地址或文件(&amp;D)：</translation>
    </message>
    <message>
        <source>A&amp;ttribution:</source>
        <translation>来源说明(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Zoom levels:</source>
        <translation>缩放级别(&amp;Z)：</translation>
    </message>
    <message>
        <source>Til&amp;e size:</source>
        <translation>瓦片大小(&amp;E)：</translation>
    </message>
    <message>
        <source>&amp;File...</source>
        <translation>文件(&amp;F)...</translation>
    </message>
    <message>
        <source>to</source>
        <translation>至</translation>
    </message>
    <message>
        <source>Road map</source>
        <translation>平面地图</translation>
    </message>
    <message>
        <source>Satellite map</source>
        <translation>卫星地图</translation>
    </message>
    <message>
        <source>Terrain map</source>
        <translation>山地地图</translation>
    </message>
    <message>
        <source>Base Map File</source>
        <translation>底图文件</translation>
    </message>
    <message>
        <source>map files</source>
        <translation>地图文件</translation>
    </message>
    <message>
        <source>all files</source>
        <translation>所有文件</translation>
    </message>
</context>
<context>
    <name>BaseMapKindCommand</name>
    <message>
        <source>The list holds no such base map. Map &gt; Base Map &gt; Manage adds one.</source>
        <translation>列表中没有这种底图，可在“地图 &gt; 底图 &gt; 管理”中添加。</translation>
    </message>
</context>
<context>
    <name>BaseMapList</name>
    <message>
        <source>The list of base maps &quot;%1&quot; cannot be read: %2</source>
        <translation>无法读取底图列表“%1”：%2</translation>
    </message>
</context>
<context>
    <name>BaseMapSwitch</name>
    <message>
        <source>Base map: %1.</source>
        <translation>底图：%1。</translation>
    </message>
    <message>
        <source>Base map: %1, from %2.</source>
        <translation>底图：%1，来自 %2。</translation>
    </message>
</context>
<context>
    <name>CheckKinds</name>
    <message>
        <source>Quality Check: %1 of %2 results with faults, %3 in all</source>
        <translation>数据检查：%2 个成果中有 %1 个存在错误，共 %3 处</translation>
    </message>
    <message>
        <source>Empty Point Check: %1 of %2 points not surveyed</source>
        <translation>空点检查：%2 个点中有 %1 个未测量</translation>
    </message>
    <message>
        <source>Resurvey Check: %1 of %2 resurveyed points out of range, resurveys without their point: %3</source>
        <translation>复测点检查：%2 个复测点中有 %1 个超限，没有对应点的复测：%3</translation>
    </message>
    <message>
        <source>Repeat Point Check: %1 of %2 results are repeats, repeats without their point: %3</source>
        <translation>重复点检查：%2 个成果中有 %1 个重复测量，没有对应点的重复测量：%3</translation>
    </message>
    <message>
        <source>Lengths in this list are metres, as the limits are. The project&apos;s coordinates and line deviations are in another unit: %1.</source>
        <translation>列表中的长度以米为单位，与限差相同。工程的坐标和横向、纵向偏差使用另一单位：%1。</translation>
    </message>
    <message>
        <source>North and east are in the unit of the project: %1. Heights and limits are metres.</source>
        <translation>北和东使用工程的单位：%1。高程和限差以米为单位。</translation>
    </message>
</context>
<context>
    <name>CheckProblems</name>
    <message>
        <source>The resurvey %1 lies %2 off in north.</source>
        <translation>复测点 %1 的北坐标相差 %2。</translation>
    </message>
    <message>
        <source>The resurvey %1 lies %2 off in east.</source>
        <translation>复测点 %1 的东坐标相差 %2。</translation>
    </message>
    <message>
        <source>The resurvey %1 lies %2 off in height.</source>
        <translation>复测点 %1 的高程相差 %2。</translation>
    </message>
    <message>
        <source>The design point has no result.</source>
        <translation>该设计点没有成果。</translation>
    </message>
    <message>
        <source>The line has no result of the point that this one surveys again.</source>
        <translation>测线上没有此复测点所对应的点的成果。</translation>
    </message>
    <message>
        <source>The line has no result of the point that this one repeats.</source>
        <translation>测线上没有此检查点所重复的点的成果。</translation>
    </message>
    <message>
        <source>It repeats %1, %2 beside it and %3 in height.</source>
        <translation>它重复 %1，平面相差 %2，高程相差 %3。</translation>
    </message>
    <message>
        <source>It repeats %1, but lies %2 off in north.</source>
        <translation>它重复 %1，但北坐标相差 %2。</translation>
    </message>
    <message>
        <source>It repeats %1, but lies %2 off in east.</source>
        <translation>它重复 %1，但东坐标相差 %2。</translation>
    </message>
    <message>
        <source>It repeats %1, but lies %2 off in height.</source>
        <translation>它重复 %1，但高程相差 %2。</translation>
    </message>
</context>
<context>
    <name>CheckRun</name>
    <message>
        <source>success</source>
        <translation>成功</translation>
    </message>
</context>
<context>
    <name>CheckShotProblems</name>
    <message>
        <source>Surveyor %1</source>
        <translation>测量员 %1</translation>
    </message>
    <message>
        <source>Rover %1</source>
        <translation>流动站 %1</translation>
    </message>
    <message>
        <source>A crew without a name</source>
        <translation>未注明的小组</translation>
    </message>
    <message>
        <source>%1 on %2: points measured %3, measured again %4, at least %5 are wanted.</source>
        <translation>%1，%2：测量 %3 个点，重复测量 %4 个，至少应为 %5 个。</translation>
    </message>
</context>
<context>
    <name>ChosenGroups</name>
    <message>
        <source>%1 groups</source>
        <translation>%1 个分组</translation>
    </message>
</context>
<context>
    <name>CodeTables</name>
    <message>
        <source>invalid</source>
        <translation>无效</translation>
    </message>
    <message>
        <source>single</source>
        <translation>单点解</translation>
    </message>
    <message>
        <source>differential</source>
        <translation>差分解</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>固定解</translation>
    </message>
    <message>
        <source>float</source>
        <translation>浮点解</translation>
    </message>
    <message>
        <source>base</source>
        <translation>基站</translation>
    </message>
    <message>
        <source>unknow</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>undefined</source>
        <translation>未定义</translation>
    </message>
    <message>
        <source>houses</source>
        <translation>民房</translation>
    </message>
    <message>
        <source>buildings</source>
        <translation>楼房</translation>
    </message>
    <message>
        <source>church</source>
        <translation>教堂</translation>
    </message>
    <message>
        <source>temple</source>
        <translation>寺庙</translation>
    </message>
    <message>
        <source>gas station</source>
        <translation>加油站</translation>
    </message>
    <message>
        <source>parking lot</source>
        <translation>停车场</translation>
    </message>
    <message>
        <source>factory</source>
        <translation>工厂</translation>
    </message>
    <message>
        <source>mine</source>
        <translation>矿山</translation>
    </message>
    <message>
        <source>gas well</source>
        <translation>气井</translation>
    </message>
    <message>
        <source>military base</source>
        <translation>军事基地</translation>
    </message>
    <message>
        <source>grave yard</source>
        <translation>墓地</translation>
    </message>
    <message>
        <source>pond</source>
        <translation>池塘</translation>
    </message>
    <message>
        <source>river</source>
        <translation>河流</translation>
    </message>
    <message>
        <source>railway</source>
        <translation>铁路</translation>
    </message>
    <message>
        <source>iron tower</source>
        <translation>铁塔</translation>
    </message>
    <message>
        <source>tunnel</source>
        <translation>隧道</translation>
    </message>
    <message>
        <source>culvert</source>
        <translation>涵洞</translation>
    </message>
    <message>
        <source>bridge</source>
        <translation>桥梁</translation>
    </message>
    <message>
        <source>cave</source>
        <translation>洞穴</translation>
    </message>
    <message>
        <source>high way</source>
        <translation>公路</translation>
    </message>
    <message>
        <source>electric pole</source>
        <translation>电杆</translation>
    </message>
    <message>
        <source>windmill</source>
        <translation>风车</translation>
    </message>
    <message>
        <source>reservoir</source>
        <translation>水库</translation>
    </message>
    <message>
        <source>dam</source>
        <translation>堤坝</translation>
    </message>
    <message>
        <source>cliff</source>
        <translation>悬崖</translation>
    </message>
    <message>
        <source>vegetable field</source>
        <translation>菜地</translation>
    </message>
    <message>
        <source>grass field</source>
        <translation>草地</translation>
    </message>
    <message>
        <source>livestock ranch</source>
        <translation>养殖场</translation>
    </message>
    <message>
        <source>flower bed</source>
        <translation>花坛</translation>
    </message>
    <message>
        <source>ravine</source>
        <translation>沟壑</translation>
    </message>
    <message>
        <source>gutter</source>
        <translation>水沟</translation>
    </message>
    <message>
        <source>building</source>
        <translation>建筑物</translation>
    </message>
    <message>
        <source>pipeline</source>
        <translation>管线</translation>
    </message>
    <message>
        <source>loft</source>
        <translation>放样</translation>
    </message>
    <message>
        <source>survey</source>
        <translation>测量</translation>
    </message>
</context>
<context>
    <name>ColumnListPanel</name>
    <message>
        <source>Search columns</source>
        <translation>查找列</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>All columns, in their first order</source>
        <translation>全部列，按最初的顺序</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>All Shown</source>
        <translation>全选列出的</translation>
    </message>
    <message>
        <source>None</source>
        <translation>全不选</translation>
    </message>
    <message>
        <source>None Shown</source>
        <translation>不选列出的</translation>
    </message>
    <message>
        <source>%1 of %2 columns checked</source>
        <translation>已选 %1 列，共 %2 列</translation>
    </message>
    <message>
        <source>No column has this name.</source>
        <translation>没有此名称的列。</translation>
    </message>
    <message>
        <source>%1; %2 shown</source>
        <translation>%1；列出 %2 列</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print this text.</source>
        <translation>显示本帮助。</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>Print the CPU time to the shown window, and leave.</source>
        <translation>输出到窗口显示为止所用的 CPU 时间，然后退出。</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;, and leave.</source>
        <translation>把窗口图像写入 &lt;file&gt;，然后退出。</translation>
    </message>
    <message>
        <source>List the components that a window layout can name, and leave.</source>
        <translation>列出窗口布局可用的组件，然后退出。</translation>
    </message>
    <message>
        <source>The project file to open.</source>
        <translation>要打开的工程文件。</translation>
    </message>
</context>
<context>
    <name>CommandList</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>The command failed: %1</source>
        <translation>命令执行失败：%1</translation>
    </message>
</context>
<context>
    <name>CoordAgreement</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 至 %2 %3</translation>
    </message>
    <message>
        <source>north %1, east %2</source>
        <translation>北 %1，东 %2</translation>
    </message>
    <message>
        <source>A wrong datum or projection: the survey is turned %1 by %2″ and scaled by %3 ppm, and its middle shifted by %4; %5 remain</source>
        <translation>基准或投影有误：测区%1旋转 %2″，缩放 %3 ppm，中部平移 %4，余差 %5</translation>
    </message>
    <message>
        <source>The survey is turned %1 by %2″ and scaled by %3 ppm, and its middle shifted by %4; %5 remain</source>
        <translation>测区%1旋转 %2″，缩放 %3 ppm，中部平移 %4，余差 %5</translation>
    </message>
    <message>
        <source>The positions on the plane are in different units, %1 here and %2 in the file</source>
        <translation>平面坐标的单位不同，本工程为 %1，文件为 %2</translation>
    </message>
    <message>
        <source>North and east are the same in both systems</source>
        <translation>两个坐标系统的北坐标和东坐标相同</translation>
    </message>
    <message>
        <source>A constant shift on the plane: %1</source>
        <translation>平面上有固定的平移：%1</translation>
    </message>
    <message>
        <source>A wrong datum or projection: positions on the plane differ by %1, and shift, rotation and scale leave %2 of it</source>
        <translation>基准或投影有误：平面位置相差 %1，平移、旋转和缩放后仍余 %2</translation>
    </message>
    <message>
        <source>the heights are the same</source>
        <translation>高程相同</translation>
    </message>
    <message>
        <source>the heights differ by a constant %1</source>
        <translation>高程相差固定值 %1</translation>
    </message>
    <message>
        <source>the heights differ by %1</source>
        <translation>高程相差 %1</translation>
    </message>
    <message>
        <source>Only the heights differ, by a constant %1: another geoid, or another kind of height.</source>
        <translation>仅高程不同，相差固定值 %1：大地水准面不同，或高程种类不同。</translation>
    </message>
    <message>
        <source>Only the heights differ, by %1: another geoid or height fitting.</source>
        <translation>仅高程不同，相差 %1：大地水准面或高程拟合不同。</translation>
    </message>
    <message>
        <source>Both systems give the same positions.</source>
        <translation>两个坐标系统给出相同的位置。</translation>
    </message>
    <message>
        <source>%1; %2.</source>
        <translation>%1；%2。</translation>
    </message>
    <message>
        <source>Results that do not follow this: %1, by up to %2 m (line %3, point %4).</source>
        <translation>与此不符的成果：%1 个，最多相差 %2 m（测线 %3，测点 %4）。</translation>
    </message>
    <message>
        <source>Their coordinates are not numbers.</source>
        <translation>坐标不是数字。</translation>
    </message>
    <message>
        <source>Results that could not be compared: %1. The first: %2</source>
        <translation>无法对比的成果：%1 个。第一个：%2</translation>
    </message>
    <message>
        <source>The file has no results to compare.</source>
        <translation>文件中没有可对比的成果。</translation>
    </message>
    <message>
        <source>counterclockwise</source>
        <translation>逆时针</translation>
    </message>
    <message>
        <source>clockwise</source>
        <translation>顺时针</translation>
    </message>
</context>
<context>
    <name>CoordCheck</name>
    <message>
        <source>&quot;{key}&quot; must be a whole number, not &quot;%1&quot;.</source>
        <translation>“{key}”必须是整数，不能是“%1”。</translation>
    </message>
    <message>
        <source>&quot;{key}&quot; must be a decimal number, such as 298.257, not &quot;%1&quot;.</source>
        <translation>“{key}”必须是小数，例如 298.257，不能是“%1”。</translation>
    </message>
</context>
<context>
    <name>CoordCompareCsv</name>
    <message>
        <source>trans north</source>
        <translation>转换北坐标</translation>
    </message>
    <message>
        <source>trans east</source>
        <translation>转换东坐标</translation>
    </message>
    <message>
        <source>trans height</source>
        <translation>转换高程</translation>
    </message>
    <message>
        <source>north diff</source>
        <translation>北差</translation>
    </message>
    <message>
        <source>east diff</source>
        <translation>东差</translation>
    </message>
    <message>
        <source>height diff</source>
        <translation>高差</translation>
    </message>
    <message>
        <source>trans fault</source>
        <translation>转换错误</translation>
    </message>
    <message>
        <source>Export Comparison</source>
        <translation>导出坐标对比</translation>
    </message>
</context>
<context>
    <name>CoordCompareModel</name>
    <message>
        <source>Line Num</source>
        <translation>线号</translation>
    </message>
    <message>
        <source>Point Num</source>
        <translation>点号</translation>
    </message>
    <message>
        <source>Org Lat</source>
        <translation>原纬度</translation>
    </message>
    <message>
        <source>Org Lon</source>
        <translation>原经度</translation>
    </message>
    <message>
        <source>Org Alt</source>
        <translation>原大地高</translation>
    </message>
    <message>
        <source>Org North</source>
        <translation>原北坐标</translation>
    </message>
    <message>
        <source>Org East</source>
        <translation>原东坐标</translation>
    </message>
    <message>
        <source>Org Height</source>
        <translation>原高程</translation>
    </message>
    <message>
        <source>Trans North</source>
        <translation>转换北坐标</translation>
    </message>
    <message>
        <source>Trans East</source>
        <translation>转换东坐标</translation>
    </message>
    <message>
        <source>Trans Height</source>
        <translation>转换高程</translation>
    </message>
    <message>
        <source>North Diff</source>
        <translation>北差</translation>
    </message>
    <message>
        <source>East Diff</source>
        <translation>东差</translation>
    </message>
    <message>
        <source>Height Diff</source>
        <translation>高差</translation>
    </message>
</context>
<context>
    <name>CoordParameterModel</name>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>坐标系统</translation>
    </message>
    <message>
        <source>Unit of coordinates</source>
        <translation>坐标单位</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>File Coord Sys</source>
        <translation>文件坐标系统</translation>
    </message>
    <message>
        <source>Proj Coord Sys</source>
        <translation>工程坐标系统</translation>
    </message>
</context>
<context>
    <name>CoordProjections</name>
    <message>
        <source>Transverse Mercator</source>
        <translation>横轴墨卡托</translation>
    </message>
    <message>
        <source>UTM</source>
        <translation>UTM</translation>
    </message>
    <message>
        <source>Lambert conformal conic</source>
        <translation>兰勃特等角圆锥</translation>
    </message>
    <message>
        <source>Mercator</source>
        <translation>墨卡托</translation>
    </message>
    <message>
        <source>Oblique Mercator</source>
        <translation>斜轴墨卡托</translation>
    </message>
    <message>
        <source>Oblique stereographic</source>
        <translation>斜轴球面</translation>
    </message>
    <message>
        <source>Polar stereographic</source>
        <translation>极球面</translation>
    </message>
    <message>
        <source>Albers equal area</source>
        <translation>阿尔伯斯等积圆锥</translation>
    </message>
    <message>
        <source>Cassini-Soldner</source>
        <translation>卡西尼</translation>
    </message>
    <message>
        <source>American polyconic</source>
        <translation>美国多圆锥</translation>
    </message>
    <message>
        <source>Krovak (north and east)</source>
        <translation>克罗瓦克（北东轴向）</translation>
    </message>
    <message>
        <source>Swiss oblique Mercator</source>
        <translation>瑞士斜轴墨卡托</translation>
    </message>
    <message>
        <source>Hotine oblique Mercator (variant A)</source>
        <translation>霍廷斜轴墨卡托（变体 A）</translation>
    </message>
    <message>
        <source>Lambert azimuthal equal area</source>
        <translation>兰勃特等积方位</translation>
    </message>
    <message>
        <source>Colombia urban</source>
        <translation>哥伦比亚城市</translation>
    </message>
</context>
<context>
    <name>CoordResult</name>
    <message>
        <source>No coordinate system has been set.</source>
        <translation>尚未设置坐标系统。</translation>
    </message>
    <message>
        <source>The transformation direction is unknown.</source>
        <translation>未知的转换方向。</translation>
    </message>
    <message>
        <source>The kind of the given coordinates is unknown.</source>
        <translation>输入坐标的类型未知。</translation>
    </message>
    <message>
        <source>The kind of the wanted coordinates is unknown.</source>
        <translation>输出坐标的类型未知。</translation>
    </message>
    <message>
        <source>The angle format is unknown.</source>
        <translation>角度格式未知。</translation>
    </message>
    <message>
        <source>The position is not a coordinate: it is not a number, or its latitude lies beyond 90 degrees.</source>
        <translation>该位置不是坐标：不是数，或纬度超过 90 度。</translation>
    </message>
    <message>
        <source>The position lies where the map projection cannot reach.</source>
        <translation>该位置超出地图投影的范围。</translation>
    </message>
    <message>
        <source>The position lies outside of the geoid file.</source>
        <translation>该位置在大地水准面文件范围之外。</translation>
    </message>
    <message>
        <source>The parameters describe no coordinate system: %1.</source>
        <translation>这些参数不能构成坐标系统：%1。</translation>
    </message>
    <message>
        <source>The result code %1 is unknown.</source>
        <translation>未知的结果代码 %1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a finite number.</source>
        <translation>“%1”不是有限的数值。</translation>
    </message>
    <message>
        <source>&quot;{ellipsoid_a}&quot; must be positive, in metres.</source>
        <translation>“{ellipsoid_a}”必须为正数，单位为米。</translation>
    </message>
    <message>
        <source>&quot;{ellipsoid_f}&quot; must be a number like 298.257, or 0 for a sphere.</source>
        <translation>“{ellipsoid_f}”必须是 298.257 之类的数值，球体为 0。</translation>
    </message>
    <message>
        <source>The Krovak projection needs the ellipsoid Bessel 1841: &quot;{ellipsoid_a}&quot; 6377397.155, &quot;{ellipsoid_f}&quot; 299.1528128.</source>
        <translation>克罗瓦克投影需要贝塞尔 1841 椭球：“{ellipsoid_a}”6377397.155，“{ellipsoid_f}”299.1528128。</translation>
    </message>
    <message>
        <source>&quot;{project_height}&quot; must lie within 100 km, in metres.</source>
        <translation>“{project_height}”必须在 100 千米以内，单位为米。</translation>
    </message>
    <message>
        <source>The coordinate system has no map projection (&quot;{project_type}&quot;).</source>
        <translation>坐标系统没有地图投影（“{project_type}”）。</translation>
    </message>
    <message>
        <source>&quot;{project_type}&quot; has the unknown value %1.</source>
        <translation>“{project_type}”的值 %1 未知。</translation>
    </message>
    <message>
        <source>&quot;{org_lat}&quot; does not suit the map projection.</source>
        <translation>“{org_lat}”不适合该地图投影。</translation>
    </message>
    <message>
        <source>&quot;{org_lon}&quot; must lie within 360 degrees.</source>
        <translation>“{org_lon}”必须在 360 度以内。</translation>
    </message>
    <message>
        <source>&quot;{parallel_1_lat}&quot; and &quot;{parallel_2_lat}&quot; do not suit the map projection: they must not be opposite, nor both 0.</source>
        <translation>“{parallel_1_lat}”和“{parallel_2_lat}”不适合该地图投影：两者不能互为相反数，也不能同时为 0。</translation>
    </message>
    <message>
        <source>&quot;{parallel_1_lat}&quot; does not suit the map projection.</source>
        <translation>“{parallel_1_lat}”不适合该地图投影。</translation>
    </message>
    <message>
        <source>The oblique projection needs &quot;{p_r}&quot;, or two points on its central line: &quot;{lat1}&quot;, &quot;{lon1}&quot;, &quot;{lat2}&quot;, &quot;{lon2}&quot;.</source>
        <translation>斜轴投影需要“{p_r}”，或其中心线上的两点：“{lat1}”、“{lon1}”、“{lat2}”、“{lon2}”。</translation>
    </message>
    <message>
        <source>&quot;{factor}&quot; must not be negative.</source>
        <translation>“{factor}”不能为负数。</translation>
    </message>
    <message>
        <source>&quot;{cutting_radius}&quot; must be smaller than the ellipsoid, and not negative.</source>
        <translation>“{cutting_radius}”必须小于椭球，且不能为负数。</translation>
    </message>
    <message>
        <source>&quot;{_7type}&quot; has the unknown value %1.</source>
        <translation>“{_7type}”的值 %1 未知。</translation>
    </message>
    <message>
        <source>The Molodensky-Badekas datum shift needs its rotation centre: &quot;{_7px}&quot;, &quot;{_7py}&quot;, &quot;{_7pz}&quot;.</source>
        <translation>莫洛金斯基-巴代卡斯基准转换需要旋转中心：“{_7px}”、“{_7py}”、“{_7pz}”。</translation>
    </message>
    <message>
        <source>&quot;{_4s}&quot; of the plane shift must not be negative.</source>
        <translation>平面转换的“{_4s}”不能为负数。</translation>
    </message>
    <message>
        <source>&quot;{axis_direction}&quot; must be NE, NW, SE or SW, not %1.</source>
        <translation>“{axis_direction}”必须是 NE、NW、SE 或 SW，不能是 %1。</translation>
    </message>
    <message>
        <source>The geoid is switched on, but &quot;{geoid_file}&quot; is empty.</source>
        <translation>大地水准面已启用，但“{geoid_file}”为空。</translation>
    </message>
    <message>
        <source>The geoid file %1 is missing or cannot be read.</source>
        <translation>大地水准面文件 %1 不存在或无法读取。</translation>
    </message>
    <message>
        <source>&quot;{p_r}&quot; must not be 0.</source>
        <translation>“{p_r}”不能为 0。</translation>
    </message>
</context>
<context>
    <name>CoordSystemPanel</name>
    <message>
        <source>Coordinate System</source>
        <translation>坐标系统</translation>
    </message>
    <message>
        <source>No coordinate system is set. Search for one, or choose ellipsoid and projection.</source>
        <translation>尚未设置坐标系统。请搜索坐标系统，或选择椭球和投影。</translation>
    </message>
    <message>
        <source>The coordinate system is defined by the parameters below.</source>
        <translation>坐标系统由下列参数定义。</translation>
    </message>
    <message>
        <source>ft, international foot</source>
        <translation>ft，国际英尺</translation>
    </message>
    <message>
        <source>ftUS, US survey foot</source>
        <translation>ftUS，美国测量英尺</translation>
    </message>
    <message>
        <source>Coordinates are in %1 (%2 m); heights are in metres.</source>
        <translation>坐标单位：%1（%2 m）；高程单位：米。</translation>
    </message>
</context>
<context>
    <name>CoordSystemQuestions</name>
    <message>
        <source>Coordinate System</source>
        <translation>坐标系统</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>by its own parameters</source>
        <translation>按自身参数定义</translation>
    </message>
    <message>
        <source>No coordinate system is chosen. Make the project without one?</source>
        <translation>尚未选择坐标系统。是否建立没有坐标系统的工程？</translation>
    </message>
    <message>
        <source>Without one, latitude and longitude cannot be turned into north and east, nor back. It can be chosen later in the project settings.</source>
        <translation>没有坐标系统，就无法在经纬度与北、东坐标之间换算。以后可在工程设置中选择。</translation>
    </message>
    <message>
        <source>This project holds points (designed: %1, survey results: %2). Change its coordinate system?</source>
        <translation>本工程中已有点（设计点：%1，测量成果：%2）。是否更改坐标系统？</translation>
    </message>
    <message>
        <source>Now: %1.
Then: %2.

The positions stay the numbers that they are: nothing is converted. They then count as positions in the new system, which is another place on the ground. Sea heights are computed anew.</source>
        <translation>现在：%1。
更改后：%2。

坐标数值保持不变，不做任何转换；之后它们将作为新坐标系统中的坐标，对应地面上的另一位置。海拔高将重新计算。</translation>
    </message>
    <message>
        <source>Their unit is another: what is %1 now will count as %2.</source>
        <translation>单位随之改变：现在以 %1 为单位的数值将按 %2 计。</translation>
    </message>
</context>
<context>
    <name>CoordSystemRows</name>
    <message>
        <source>Latitude of true scale</source>
        <translation>真实比例纬线</translation>
    </message>
    <message>
        <source>Rectified grid angle</source>
        <translation>矫正格网角</translation>
    </message>
    <message>
        <source>First standard parallel</source>
        <translation>第一标准纬线</translation>
    </message>
</context>
<context>
    <name>CoordSystemSearch</name>
    <message>
        <source>EPSG code or name</source>
        <translation>EPSG 代码或名称</translation>
    </message>
    <message>
        <source>Search the EPSG register by code or by words of the name or area, such as &quot;32650&quot; or &quot;Beijing 1954 117E&quot;.</source>
        <translation>按代码或者名称、地区中的单词搜索 EPSG 坐标系统，例如“32650”或“Beijing 1954 117E”。</translation>
    </message>
    <message>
        <source>No coordinate system has this code or name.</source>
        <translation>没有此代码或名称的坐标系统。</translation>
    </message>
    <message>
        <source>EPSG:%1 (%2) is no longer in use; choose the system that has replaced it.</source>
        <translation>EPSG:%1（%2）已停用；请选择取代它的坐标系统。</translation>
    </message>
</context>
<context>
    <name>CountAzimuthDlg</name>
    <message>
        <source>Calculate Azimuth</source>
        <translation>计算方位角</translation>
    </message>
    <message>
        <source>StartPoint</source>
        <translation>起点</translation>
    </message>
    <message>
        <source>DestPoint</source>
        <translation>终点</translation>
    </message>
    <message>
        <source>Pick &amp;Both on the Map</source>
        <translation>在地图上选取两点(&amp;B)</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>E</source>
        <translation>E</translation>
    </message>
    <message>
        <source>Pick on the &amp;Map</source>
        <translation>在地图上选取(&amp;M)</translation>
    </message>
    <message>
        <source>Pick &amp;on the Map</source>
        <translation>在地图上选取(&amp;O)</translation>
    </message>
    <message>
        <source>Click a place or a point on the map</source>
        <translation>在地图上单击一处或一个点</translation>
    </message>
    <message>
        <source>Click the start, then the destination on the map</source>
        <translation>在地图上先单击起点，再单击终点</translation>
    </message>
    <message>
        <source>Azimuth Type</source>
        <translation>方位角格式</translation>
    </message>
    <message>
        <source>度分秒(dd.mmss)</source>
        <translation>度分秒(dd.mmss)</translation>
    </message>
    <message>
        <source>度(ddd.dddddd)</source>
        <translation>度(ddd.dddddd)</translation>
    </message>
    <message>
        <source>Point Azimuth</source>
        <translation>方位角</translation>
    </message>
    <message>
        <source>Point Line Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Calculate</source>
        <translation>计算</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>&amp;Design Lines with It</source>
        <translation>用于测线设计(&amp;D)</translation>
    </message>
    <message>
        <source>Empty azimuth and length; the coordinates stay</source>
        <translation>清空方位角和长度，坐标保留</translation>
    </message>
    <message>
        <source>Enter this azimuth in the dialog of the design lines, which opens for it</source>
        <translation>把这个方位角填入测线设计窗口；窗口没有打开时将打开</translation>
    </message>
    <message>
        <source>米</source>
        <translation>米</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a coordinate. Type a number with a decimal point, at most 1,000,000,000.</source>
        <translation>%1：“%2”不是坐标。请输入数字，小数点用“.”，不超过 1,000,000,000。</translation>
    </message>
    <message>
        <source>Taken from the points: %1.</source>
        <translation>取自点：%1。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Calculate Msg Not Enough</source>
        <translation>请输入起点和终点的全部坐标。</translation>
    </message>
    <message>
        <source>Both places are the same: there is no direction from one to the other.</source>
        <translation>起点和终点相同，没有方向。</translation>
    </message>
</context>
<context>
    <name>CrewList</name>
    <message>
        <source>Names without a design point: %1, first %2/%3.</source>
        <translation>没有设计点的点名：%1，第一个为 %2/%3。</translation>
    </message>
    <message>
        <source>Problems of a line or a group, without a point: %1.</source>
        <translation>属于测线或一组成果、没有点的问题：%1。</translation>
    </message>
    <message>
        <source>Points to measure: %1, of them not surveyed yet: %2.</source>
        <translation>要测量的点：%1，其中尚未测量的：%2。</translation>
    </message>
</context>
<context>
    <name>CrewPanel</name>
    <message>
        <source>Crews</source>
        <translation>测量组</translation>
    </message>
    <message>
        <source>All &amp;crews</source>
        <translation>全部测量组(&amp;C)</translation>
    </message>
    <message>
        <source>no surveyor given</source>
        <translation>未填测量员</translation>
    </message>
    <message>
        <source>Results of this surveyor: %1</source>
        <translation>该测量员的成果：%1</translation>
    </message>
    <message>
        <source>&amp;Single crews:</source>
        <translation>单个测量组(&amp;S)：</translation>
    </message>
    <message>
        <source>Please choose a crew.</source>
        <translation>请选择一个测量组。</translation>
    </message>
</context>
<context>
    <name>CsvFaults</name>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>无法读取“%1”：%2</translation>
    </message>
    <message>
        <source>The points are as they were before.</source>
        <translation>点数据保持原样。</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
</context>
<context>
    <name>CsvFields</name>
    <message>
        <source>It has %1 fields, of which %2 are read. Cut off: &quot;%3&quot;</source>
        <translation>共有 %1 个字段，只读取前 %2 个。被截去的内容：“%3”</translation>
    </message>
    <message>
        <source>The fields are separated by tabs, not by commas.</source>
        <translation>字段以制表符分隔，而不是逗号。</translation>
    </message>
    <message>
        <source>The fields are separated by &quot;%1&quot;, not by commas.</source>
        <translation>字段以“%1”分隔，而不是逗号。</translation>
    </message>
    <message>
        <source>It holds zero bytes, as UTF-16 does. Save the file as UTF-8.</source>
        <translation>它含有零字节，与 UTF-16 相同。请将文件另存为 UTF-8。</translation>
    </message>
</context>
<context>
    <name>CsvImport</name>
    <message>
        <source>Field %1, &quot;%2&quot;, is damaged.</source>
        <translation>第 %1 个字段“%2”已损坏。</translation>
    </message>
</context>
<context>
    <name>CsvInput</name>
    <message>
        <source>It is not a file.</source>
        <translation>它不是文件。</translation>
    </message>
    <message>
        <source>It became shorter meanwhile.</source>
        <translation>该文件在读取过程中变短了。</translation>
    </message>
</context>
<context>
    <name>DailyReport</name>
    <message>
        <source>Results</source>
        <translation>成果</translation>
    </message>
    <message>
        <source>%1: over limit</source>
        <translation>%1：超限</translation>
    </message>
    <message>
        <source>%1: not judged</source>
        <translation>%1：未评定</translation>
    </message>
    <message>
        <source>%1: within limits</source>
        <translation>%1：合格</translation>
    </message>
    <message>
        <source>%1: measured again</source>
        <translation>%1：复测和重复测量</translation>
    </message>
    <message>
        <source>other results</source>
        <translation>其他成果</translation>
    </message>
    <message>
        <source>not staked yet</source>
        <translation>尚未放样</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>Open problems by kind</source>
        <translation>未处理的问题（按类型）</translation>
    </message>
    <message>
        <source>Of the day</source>
        <translation>当天</translation>
    </message>
    <message>
        <source>In the project</source>
        <translation>整个工程</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Open problems, those of the day first</source>
        <translation>未处理的问题（当天的在前）</translation>
    </message>
    <message>
        <source>and %1 more; the window &quot;Problems&quot; has them all</source>
        <translation>另有 %1 个，“问题”窗口中列有全部问题</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>The project has no results.</source>
        <translation>工程中没有成果。</translation>
    </message>
    <message>
        <source>There is no result of this day.</source>
        <translation>这一天没有成果。</translation>
    </message>
    <message>
        <source>No result has a time, so that there is no day to report.</source>
        <translation>没有带时间的成果，无法确定日报的日期。</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>Figures are those of the workbook &quot;Quality statistics&quot;: of first measurements, differences measured minus design.</source>
        <translation>数值与工作簿“质量统计”相同：只统计首次测量，差值为实测减设计。</translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation>没有。</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
    <message>
        <source>%1: points staked: %2, over limit: %3, still missing: %4, open problems: %5.</source>
        <translation>%1：放样 %2 点，超限 %3，尚缺 %4，未处理的问题 %5。</translation>
    </message>
    <message>
        <source>and %1 more; the workbook &quot;Quality statistics&quot; has them all</source>
        <translation>另有 %1 行，工作簿“质量统计”中列有全部</translation>
    </message>
    <message>
        <source>Statistics by surveyor, until the end of the day</source>
        <translation>截至当天结束的统计（按测量员）</translation>
    </message>
    <message>
        <source>Statistics by rover, until the end of the day</source>
        <translation>截至当天结束的统计（按流动站）</translation>
    </message>
    <message>
        <source>Statistics by surveyor on %1</source>
        <translation>%1 的统计（按测量员）</translation>
    </message>
    <message>
        <source>Statistics by rover on %1</source>
        <translation>%1 的统计（按流动站）</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>工程</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>%1, in the zone %2</source>
        <translation>%1，时区 %2</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>坐标系统</translation>
    </message>
    <message>
        <source>Surveyors</source>
        <translation>测量员</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>制作人</translation>
    </message>
    <message>
        <source>Made on</source>
        <translation>制作日期</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Design points</source>
        <translation>设计点</translation>
    </message>
    <message>
        <source>Staked until then</source>
        <translation>累计放样</translation>
    </message>
    <message>
        <source>Still missing</source>
        <translation>尚缺</translation>
    </message>
    <message>
        <source>Points a day at this pace</source>
        <translation>目前每天点数</translation>
    </message>
    <message>
        <source>%1 (mean of %2 days)</source>
        <translation>%1（%2 天平均）</translation>
    </message>
    <message>
        <source>Days of work still needed</source>
        <translation>还需工作天数</translation>
    </message>
    <message>
        <source>Last day expected</source>
        <translation>预计最后一天</translation>
    </message>
    <message>
        <source>The day in numbers</source>
        <translation>当天的数字</translation>
    </message>
    <message>
        <source>Sources staked</source>
        <translation>放样激发点</translation>
    </message>
    <message>
        <source>Receivers staked</source>
        <translation>放样接收点</translation>
    </message>
    <message>
        <source>Not planned</source>
        <translation>设计外</translation>
    </message>
    <message>
        <source>Resurveys</source>
        <translation>复测</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>重复测量</translation>
    </message>
    <message>
        <source>Within limits</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>Over limit</source>
        <translation>超限</translation>
    </message>
    <message>
        <source>Not judged</source>
        <translation>未评定</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>No result of the chosen period and surveyors has a time.</source>
        <translation>所选时段和测量员的成果都没有时间。</translation>
    </message>
</context>
<context>
    <name>DataInspectionCommand</name>
    <message>
        <source>Quality Check Complete!</source>
        <translation>质量检查完成！</translation>
    </message>
</context>
<context>
    <name>DataProcess5Assistant</name>
    <message>
        <source>提示</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>是否退出程序？</source>
        <translation>是否退出程序？</translation>
    </message>
</context>
<context>
    <name>DataProcessDataManager</name>
    <message>
        <source>Loading Database</source>
        <translation>正在加载数据库</translation>
    </message>
    <message>
        <source>Import Design Data</source>
        <translation>正在导入设计数据</translation>
    </message>
    <message>
        <source>Import Survey Data</source>
        <translation>正在导入测量数据</translation>
    </message>
    <message>
        <source>Save Design Data</source>
        <translation>正在保存设计数据</translation>
    </message>
    <message>
        <source>Save Survey Data</source>
        <translation>正在保存测量数据</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to the open project; please choose another file.</source>
        <translation>“%1”是打开的工程的文件；请选择另一个文件。</translation>
    </message>
    <message>
        <source>Line %1 has no point %2 any more: nothing was changed.</source>
        <translation>测线 %1 上已没有点 %2，未作任何修改。</translation>
    </message>
    <message>
        <source>There is not enough memory: nothing was changed.</source>
        <translation>内存不足：未作任何更改。</translation>
    </message>
    <message>
        <source>Save History</source>
        <translation>保存历史记录</translation>
    </message>
</context>
<context>
    <name>DataProcessLayerImp</name>
    <message>
        <source>Base</source>
        <translation>基站</translation>
    </message>
    <message>
        <source>base</source>
        <translation>基站</translation>
    </message>
    <message>
        <source>The map shows results in the survey view (F7).</source>
        <translation>成果显示在测量视图（F7）的地图上。</translation>
    </message>
    <message>
        <source>Draw Design Data</source>
        <translation>正在绘制设计数据</translation>
    </message>
    <message>
        <source>Draw Survey Data</source>
        <translation>正在绘制测量数据</translation>
    </message>
    <message>
        <source>Line %1, point %2 (receiver)</source>
        <translation>测线 %1，点 %2（接收点）</translation>
    </message>
    <message>
        <source>Line %1, point %2 (source)</source>
        <translation>测线 %1，点 %2（激发点）</translation>
    </message>
    <message>
        <source>Line %1, point %2 (design)</source>
        <translation>测线 %1，点 %2（设计点）</translation>
    </message>
    <message>
        <source>Line %1, point %2 (survey result)</source>
        <translation>测线 %1，点 %2（测量成果）</translation>
    </message>
    <message>
        <source>%1-%2 (base station)</source>
        <translation>%1-%2（基准站）</translation>
    </message>
</context>
<context>
    <name>DatumShiftChoice</name>
    <message>
        <source>&amp;Datum shift:</source>
        <translation>基准转换(&amp;D)：</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>By the parameters below</source>
        <translation>按下方参数</translation>
    </message>
    <message>
        <source>The register knows no datum shift for this system. Without one, positions are taken as WGS 84.</source>
        <translation>EPSG 库中没有该坐标系统的基准转换。不设基准转换时，位置按 WGS 84 处理。</translation>
    </message>
    <message>
        <source>None of the register&apos;s datum shifts covers most of this system&apos;s area. Without one, positions are taken as WGS 84.</source>
        <translation>EPSG 库中没有覆盖该坐标系统大部分使用范围的基准转换。不设基准转换时，位置按 WGS 84 处理。</translation>
    </message>
    <message>
        <source>Without a datum shift, positions are taken as WGS 84.</source>
        <translation>不设基准转换时，位置按 WGS 84 处理。</translation>
    </message>
    <message>
        <source>This datum shift does not cover this system&apos;s area. It is meant for: %1</source>
        <translation>该基准转换不覆盖此坐标系统的区域，其适用区域为：%1</translation>
    </message>
    <message>
        <source>This datum shift covers %1 % of this system&apos;s area. It is meant for: %2</source>
        <translation>该基准转换只覆盖此坐标系统区域的 %1 %，其适用区域为：%2</translation>
    </message>
    <message>
        <source>Datum shifts of the EPSG register for this system: name, accuracy, and the area that each is meant for. Those that suit the system&apos;s area best come first. Their names say &quot;to WGS 84&quot;; the parameters below lead from WGS 84.</source>
        <translation>EPSG 库中适用于该坐标系统的基准转换：名称、精度和适用地区。最符合该系统使用范围的排在最前。名称写的是“到 WGS 84”的方向；下面的参数是由 WGS 84 出发的。</translation>
    </message>
</context>
<context>
    <name>DayQualityPlot</name>
    <message>
        <source>Accuracy (m)</source>
        <translation>精度 (m)</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>卫星数</translation>
    </message>
    <message>
        <source>Accuracy and satellites over the day</source>
        <translation>一天内的精度与卫星数</translation>
    </message>
    <message>
        <source>None of the results has a time.</source>
        <translation>所有成果都没有时间。</translation>
    </message>
    <message>
        <source>limits: %1 m, %2 satellites</source>
        <translation>限差：%1 m，%2 颗卫星</translation>
    </message>
    <message>
        <source>Horizontal accuracy. Results: %1, of all shown days together, without a time: %2.</source>
        <translation>水平精度。成果：%1，所示各天合并，无时间：%2。</translation>
    </message>
    <message>
        <source>Time of the day</source>
        <translation>一天中的时间</translation>
    </message>
</context>
<context>
    <name>DemoProject</name>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>无法建立文件夹“%1”。</translation>
    </message>
</context>
<context>
    <name>DemoSurveyCommand</name>
    <message>
        <source>Demo Survey</source>
        <translation>示例工程</translation>
    </message>
    <message>
        <source>The demo survey is open already.</source>
        <translation>示例工程已经打开。</translation>
    </message>
    <message>
        <source>Make the demo survey in the folder &quot;%1&quot;? With No you choose another place.</source>
        <translation>要在文件夹“%1”中建立示例工程吗？选“否”可以另选位置。</translation>
    </message>
    <message>
        <source>Two crews have staked 4,000 points in six days, and left faults to be found. The file csv/faults.csv lists them. The survey is yours to change: to begin anew, delete its folder.</source>
        <translation>两个测量组用六天放样了 4,000 个点，留下了一些有待发现的错误，文件 csv/faults.csv 列出了它们。示例工程可以任意修改；要重新开始，删除它的文件夹即可。</translation>
    </message>
    <message>
        <source>Folder for the Demo Survey</source>
        <translation>选择存放示例工程的文件夹</translation>
    </message>
    <message>
        <source>The demo survey could not be made.</source>
        <translation>无法建立示例工程。</translation>
    </message>
</context>
<context>
    <name>DesignCsv</name>
    <message>
        <source>Field %1, &quot;%2&quot;, is no integer.</source>
        <translation>第 %1 个字段“%2”不是整数。</translation>
    </message>
    <message>
        <source>Field %1, &quot;%2&quot;, is no number.</source>
        <translation>第 %1 个字段“%2”不是数字。</translation>
    </message>
    <message>
        <source>There are fewer than %1 fields.</source>
        <translation>字段少于 %1 个。</translation>
    </message>
    <message>
        <source>Import Design Data</source>
        <translation>正在导入设计数据</translation>
    </message>
    <message>
        <source>point_num</source>
        <translation>点号</translation>
    </message>
    <message>
        <source>line_num</source>
        <translation>线号</translation>
    </message>
    <message>
        <source>north</source>
        <translation>北坐标</translation>
    </message>
    <message>
        <source>east</source>
        <translation>东坐标</translation>
    </message>
    <message>
        <source>elevation</source>
        <translation>高程</translation>
    </message>
    <message>
        <source>design code</source>
        <translation>设计编码</translation>
    </message>
    <message>
        <source>azimuth</source>
        <translation>方位角</translation>
    </message>
    <message>
        <source>type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Export Design Data</source>
        <translation>正在导出设计数据</translation>
    </message>
    <message>
        <source>Field %1, &quot;%2&quot;, is no integer. A receiver has 1 there, a source 0.</source>
        <translation>第 %1 个字段“%2”不是整数。接收点应填 1，激发点应填 0。</translation>
    </message>
    <message>
        <source>This is an exported design file: it has nine fields, with the design code as the sixth. An import reads eight; take the design code out.</source>
        <translation>这是导出的设计文件：共九个字段，第六个是设计编码。导入只读取八个字段，请先去掉设计编码。</translation>
    </message>
    <message>
        <source>Line 1 is the heading of survey results. Import them as such.</source>
        <translation>第 1 行是测量成果的列标题。请作为测量数据导入。</translation>
    </message>
    <message>
        <source>It has the nine fields of an exported design file.</source>
        <translation>它是导出设计文件的九个字段。</translation>
    </message>
</context>
<context>
    <name>DesignFaults</name>
    <message>
        <source>%1: %2 is too large. At most %3.</source>
        <translation>%1：%2 太大，最大为 %3。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a number.</source>
        <translation>%1：“%2”不是数字。</translation>
    </message>
    <message>
        <source>%1: %2 has more than 59 minutes or seconds (dd.mmss).</source>
        <translation>%1：%2 的分或秒超过 59（dd.mmss）。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a whole number.</source>
        <translation>%1：“%2”不是整数。</translation>
    </message>
    <message>
        <source>%1: %2 is not between %3 and %4.</source>
        <translation>%1：%2 不在 %3 到 %4 之间。</translation>
    </message>
    <message>
        <source>%1: a step of 0 is not allowed.</source>
        <translation>%1：步长不能为 0。</translation>
    </message>
    <message>
        <source>%1: with a step of %2 the numbers from %3 never reach %4.</source>
        <translation>%1：步长为 %2 时，从 %3 开始永远到不了 %4。</translation>
    </message>
    <message>
        <source>%1: there is no value.</source>
        <translation>%1：没有填写。</translation>
    </message>
    <message>
        <source>%1: the grid would have %2 lines x %3 points. At most %4 points in all.</source>
        <translation>%1：网格将有 %2 条线 × %3 个点，总点数最多 %4。</translation>
    </message>
    <message>
        <source>%1: %2 is below the first number, %3. No points.</source>
        <translation>%1：%2 小于起始号 %3，没有点。</translation>
    </message>
</context>
<context>
    <name>DesignGenerator</name>
    <message>
        <source>Design R-Design Data</source>
        <translation>正在生成接收点</translation>
    </message>
    <message>
        <source>Design S-Design Data</source>
        <translation>正在生成激发点</translation>
    </message>
    <message>
        <source>%1 design points generated</source>
        <translation>已生成 %1 个设计点</translation>
    </message>
    <message>
        <source>%1 design points replaced by %2</source>
        <translation>%1 个设计点已替换为 %2 个</translation>
    </message>
    <message>
        <source>; %1 receiver points had the numbers of source points and were left out</source>
        <translation>；%1 个接收点与激发点同号，未生成</translation>
    </message>
    <message>
        <source>The design would have %1 points. At most %2 points in all.</source>
        <translation>设计将有 %1 个点，最多 %2 个。</translation>
    </message>
    <message>
        <source>There is not enough memory for %1 design points.</source>
        <translation>内存不足，无法容纳 %1 个设计点。</translation>
    </message>
</context>
<context>
    <name>DesignLineControl</name>
    <message>
        <source>Export All</source>
        <translation>导出全部</translation>
    </message>
    <message>
        <source>Export Selected</source>
        <translation>导出所选</translation>
    </message>
    <message>
        <source>Export All Empty</source>
        <translation>导出全部未测点</translation>
    </message>
    <message>
        <source>Export Selected Empty</source>
        <translation>导出所选未测点</translation>
    </message>
    <message>
        <source>Export All DB</source>
        <translation>导出全部到数据库</translation>
    </message>
    <message>
        <source>Export Selected DB</source>
        <translation>导出所选到数据库</translation>
    </message>
    <message>
        <source>Export All Empty DB</source>
        <translation>导出全部未测点到数据库</translation>
    </message>
    <message>
        <source>Export Selected Empty DB</source>
        <translation>导出所选未测点到数据库</translation>
    </message>
    <message>
        <source>Export All Kml</source>
        <translation>导出全部为 KML</translation>
    </message>
    <message>
        <source>Export Selected Kml</source>
        <translation>导出所选为 KML</translation>
    </message>
    <message>
        <source>Export All Empty Kml</source>
        <translation>导出全部未测点为 KML</translation>
    </message>
    <message>
        <source>Export Selected Empty Kml</source>
        <translation>导出所选未测点为 KML</translation>
    </message>
    <message>
        <source>Points: %1, surveyed: %2</source>
        <translation>点数：%1，已测：%2</translation>
    </message>
    <message>
        <source>Clears the selection of the groups. To go to a point, use Find.</source>
        <translation>清除对分组的选择。要转到某个点，请使用查找。</translation>
    </message>
    <message>
        <source>design data (%1)</source>
        <translation>设计数据 (%1)</translation>
    </message>
    <message>
        <source>Send data (%1)</source>
        <translation>激发数据 (%1)</translation>
    </message>
    <message>
        <source>Recv data (%1)</source>
        <translation>接收数据 (%1)</translation>
    </message>
    <message>
        <source>Import Csv</source>
        <translation>导入 CSV</translation>
    </message>
</context>
<context>
    <name>DesignLineTable</name>
    <message>
        <source>Export Selected Design Point</source>
        <translation>导出选中的设计点</translation>
    </message>
    <message>
        <source>The project has no design points yet.</source>
        <translation>工程中还没有设计点。</translation>
    </message>
    <message>
        <source>No line is shown. &lt;a href=&quot;#&quot;&gt;Show the first line&lt;/a&gt;</source>
        <translation>没有显示测线。&lt;a href=&quot;#&quot;&gt;显示第一条测线&lt;/a&gt;</translation>
    </message>
</context>
<context>
    <name>DesignTable</name>
    <message>
        <source>point num</source>
        <translation>点号</translation>
    </message>
    <message>
        <source>line num</source>
        <translation>线号</translation>
    </message>
    <message>
        <source>north</source>
        <translation>北坐标</translation>
    </message>
    <message>
        <source>east</source>
        <translation>东坐标</translation>
    </message>
    <message>
        <source>elevation</source>
        <translation>高程</translation>
    </message>
    <message>
        <source>design code</source>
        <translation>设计编码</translation>
    </message>
    <message>
        <source>azimuth</source>
        <translation>方位角</translation>
    </message>
    <message>
        <source>type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>surveyed</source>
        <translation>已测</translation>
    </message>
    <message>
        <source>not surveyed</source>
        <translation>未测</translation>
    </message>
</context>
<context>
    <name>DesignText</name>
    <message>
        <source>%1 km²</source>
        <translation>%1 km²</translation>
    </message>
    <message>
        <source>%1 m²</source>
        <translation>%1 m²</translation>
    </message>
    <message>
        <source>Distance from a line to the next, in %1</source>
        <translation>相邻两条线的间距，单位 %1</translation>
    </message>
    <message>
        <source>Distance from a point to the next on its line, in %1</source>
        <translation>线上相邻两点的间距，单位 %1</translation>
    </message>
    <message>
        <source>The lowest number of the survey</source>
        <translation>测区的最小号</translation>
    </message>
    <message>
        <source>The highest number that may be given</source>
        <translation>允许的最大号</translation>
    </message>
    <message>
        <source>From a number to the next; the distance does not change with it</source>
        <translation>相邻两个号之差；间距不随它改变</translation>
    </message>
    <message>
        <source>Digits of a number: 4 writes 10 as 0010. Longer numbers stay whole.</source>
        <translation>号的位数：4 位时 10 写作 0010。更长的号不截断。</translation>
    </message>
    <message>
        <source>Generation begins with this line, at the start position</source>
        <translation>从这条线开始生成，位于起始坐标处</translation>
    </message>
    <message>
        <source>Each line begins with this point</source>
        <translation>每条线从这个点号开始</translation>
    </message>
    <message>
        <source>Position of the first point that is generated, in %1</source>
        <translation>生成的第一个点的坐标，单位 %1</translation>
    </message>
    <message>
        <source>Direction in which the point numbers grow, clockwise from north</source>
        <translation>点号增大的方向，从北顺时针计算</translation>
    </message>
    <message>
        <source>The next line lies to the left of that direction, not to the right</source>
        <translation>下一条线排在该方向的左侧，而不是右侧</translation>
    </message>
    <message>
        <source>%1 lines: %2 to %3</source>
        <translation>%1 条线：%2 至 %3</translation>
    </message>
    <message>
        <source>%1 points: %2 to %3</source>
        <translation>%1 个点：%2 至 %3</translation>
    </message>
    <message>
        <source>Points run towards %1, lines follow to the left.</source>
        <translation>点沿 %1 方向排列，线依次排在左侧。</translation>
    </message>
    <message>
        <source>Points run towards %1, lines follow to the right.</source>
        <translation>点沿 %1 方向排列，线依次排在右侧。</translation>
    </message>
    <message>
        <source>%1 receiver lines x %2 points = %3; area %4</source>
        <translation>%1 条接收线 × %2 个点 = %3；面积 %4</translation>
    </message>
    <message>
        <source>%1 source lines x %2 points = %3; area %4</source>
        <translation>%1 条激发线 × %2 个点 = %3；面积 %4</translation>
    </message>
    <message>
        <source>Bins %1 x %2 %3, along and across the receiver lines</source>
        <translation>面元 %1 × %2 %3（沿接收线 × 垂直接收线）</translation>
    </message>
    <message>
        <source>The project has no design points that would be replaced.</source>
        <translation>工程中没有会被替换的设计点。</translation>
    </message>
    <message>
        <source>%1 design points of %2 lines will be replaced, by Calc R and Calc S too. Survey results stay.</source>
        <translation>%2 条线的 %1 个设计点将被替换，“计算接收线”和“计算激发线”也是如此。测量成果保留不变。</translation>
    </message>
    <message>
        <source>The grids lie %1 km apart.</source>
        <translation>两个网格相距 %1 km。</translation>
    </message>
    <message>
        <source>Points with the same number in both grids: %1. Of these, OK generates the source points alone.</source>
        <translation>两个网格中同号的点：%1。对于这些点，“确定”只生成激发点。</translation>
    </message>
</context>
<context>
    <name>DistancePlot</name>
    <message>
        <source>Horizontal distances from the design</source>
        <translation>与设计点的水平距离</translation>
    </message>
    <message>
        <source>None of the results has a design position.</source>
        <translation>所有成果都没有设计位置。</translation>
    </message>
    <message>
        <source>Horizontal distance (m)</source>
        <translation>水平距离 (m)</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点数</translation>
    </message>
    <message>
        <source>95 % are not farther than %1 m</source>
        <translation>95 % 不超过 %1 m</translation>
    </message>
    <message>
        <source>Results: %1, without a design position: %2.</source>
        <translation>成果：%1，无设计位置：%2。</translation>
    </message>
    <message>
        <source>95 %: by nearest rank, of n distances in ascending order number 0.95 n, rounded up.</source>
        <translation>95 %：最近秩法，n 个距离按升序排列，取第 0.95 n 个（向上取整）。</translation>
    </message>
    <message>
        <source>from %1 to %2 m: %3</source>
        <translation>%1 至 %2 m：%3</translation>
    </message>
    <message>
        <source>limit: %1 m</source>
        <translation>限差：%1 m</translation>
    </message>
    <message>
        <source>not farther than the limit: %1</source>
        <translation>不超过限差：%1</translation>
    </message>
    <message>
        <source>farther: %1</source>
        <translation>超过限差：%1</translation>
    </message>
</context>
<context>
    <name>DlgAbout</name>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
    </message>
    <message>
        <source>Built with %1.</source>
        <translation>使用 %1 构建。</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
</context>
<context>
    <name>DlgAcceptProblems</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Accept Problems</source>
        <translation>接受问题</translation>
    </message>
    <message>
        <source>They leave the list of the open problems. One comes back when a record that it is about changes.</source>
        <translation>它们离开未处理的列表。所涉及的记录改变后，问题会重新出现。</translation>
    </message>
    <message>
        <source>such as: the stake was moved with the client&apos;s consent</source>
        <translation>例如：经甲方同意移桩</translation>
    </message>
    <message>
        <source>&amp;Reason:</source>
        <translation>原因(&amp;R)：</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>接受</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>DlgBaseMaps</name>
    <message>
        <source>Base Maps</source>
        <translation>底图</translation>
    </message>
    <message>
        <source>OK writes a new one and keeps the old one beside it.</source>
        <translation>按“确定”会写入新列表，并在旁边保留原文件。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>Add a base map of your own</source>
        <translation>添加自己的底图</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>Remove a base map of your own; an installed one is only hidden, by its check mark</source>
        <translation>移除自己的底图；预装的底图只能取消勾选来隐藏</translation>
    </message>
    <message>
        <source>&amp;Put Back</source>
        <translation>恢复(&amp;P)</translation>
    </message>
    <message>
        <source>Make it as it was installed</source>
        <translation>恢复为预装时的设置</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>At &amp;most:</source>
        <translation>上限(&amp;M)：</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>清除(&amp;C)</translation>
    </message>
    <message>
        <source>Delete the tiles; they are fetched again when needed</source>
        <translation>删除瓦片，需要时会重新获取</translation>
    </message>
    <message>
        <source>&amp;Show on Map</source>
        <translation>在地图上显示(&amp;S)</translation>
    </message>
    <message>
        <source>Keep the list, and show this base map</source>
        <translation>保存列表并显示此底图</translation>
    </message>
    <message>
        <source>Another base map has this name.</source>
        <translation>已有同名的底图。</translation>
    </message>
    <message>
        <source>New base map</source>
        <translation>新底图</translation>
    </message>
    <message>
        <source>New base map %1</source>
        <translation>新底图 %1</translation>
    </message>
    <message>
        <source>Tiles kept on this computer: %1 MB</source>
        <translation>本机保留的瓦片：%1 MB</translation>
    </message>
    <message>
        <source>The list cannot be saved. It holds until the program ends.</source>
        <translation>无法保存列表，它只在程序退出前有效。</translation>
    </message>
</context>
<context>
    <name>DlgCoordCompare</name>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy with &amp;Headings</source>
        <translation>连同列标题复制(&amp;H)</translation>
    </message>
    <message>
        <source>Coordinate Comparison</source>
        <translation>坐标对比</translation>
    </message>
    <message>
        <source>Nothing was imported from &quot;%1&quot;: its coordinate system is not the project&apos;s. Parameters that differ: %2.</source>
        <translation>未从“%1”导入任何内容：它的坐标系统与本工程不同。不同的参数：%2 个。</translation>
    </message>
    <message>
        <source>Coord Params</source>
        <translation>坐标参数</translation>
    </message>
    <message>
        <source>Data Table</source>
        <translation>数据表</translation>
    </message>
    <message>
        <source>Results compared: %1</source>
        <translation>已对比的成果：%1</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均值</translation>
    </message>
    <message>
        <source>Standard Deviation</source>
        <translation>标准差</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>均方根</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>At Line / Point</source>
        <translation>所在测线 / 测点</translation>
    </message>
    <message>
        <source>North Diff (%1)</source>
        <translation>北差（%1）</translation>
    </message>
    <message>
        <source>East Diff (%1)</source>
        <translation>东差（%1）</translation>
    </message>
    <message>
        <source>Height Diff (m)</source>
        <translation>高差（m）</translation>
    </message>
    <message>
        <source>Show the row of this point</source>
        <translation>显示该点所在的行</translation>
    </message>
    <message>
        <source>Export To Excel Success!</source>
        <translation>导出到 Excel 成功！</translation>
    </message>
    <message>
        <source>Export To Excel Failed!</source>
        <translation>导出到 Excel 失败！</translation>
    </message>
    <message>
        <source>Export To Csv Success!</source>
        <translation>导出到 CSV 成功！</translation>
    </message>
    <message>
        <source>Export To Csv Failed!</source>
        <translation>导出到 CSV 失败！</translation>
    </message>
    <message>
        <source>Export To Excel</source>
        <translation>导出到 Excel</translation>
    </message>
    <message>
        <source>Export To Csv</source>
        <translation>导出到 CSV</translation>
    </message>
    <message>
        <source>Get Save File Name</source>
        <translation>选择保存的文件名</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the database that is compared.</source>
        <translation>“%1”就是正在对比的数据库。</translation>
    </message>
    <message>
        <source>Open the file?</source>
        <translation>打开该文件吗？</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>失败</translation>
    </message>
</context>
<context>
    <name>DlgCoordParam</name>
    <message>
        <source>Coordinate System</source>
        <translation>坐标系统</translation>
    </message>
</context>
<context>
    <name>DlgCsvKind</name>
    <message>
        <source>The heading of &quot;%1&quot; does not tell what the file holds. Are these design points or survey results?</source>
        <translation>从表头看不出“%1”的内容。这些是设计点还是测量成果？</translation>
    </message>
    <message>
        <source>The first lines of the file</source>
        <translation>文件的前几行</translation>
    </message>
    <message>
        <source>&amp;Design Points</source>
        <translation>设计点(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Survey Results</source>
        <translation>测量成果(&amp;S)</translation>
    </message>
</context>
<context>
    <name>DlgDesignLine</name>
    <message>
        <source>R-Line Dist:</source>
        <translation>接收线距：</translation>
    </message>
    <message>
        <source>R-Line Start No.:</source>
        <translation>接收线起始号：</translation>
    </message>
    <message>
        <source>R-Line End No.:</source>
        <translation>接收线终止号：</translation>
    </message>
    <message>
        <source>R-Line Step:</source>
        <translation>接收线号步长：</translation>
    </message>
    <message>
        <source>R-Line Base:</source>
        <translation>接收线号位数：</translation>
    </message>
    <message>
        <source>R-Point Dist:</source>
        <translation>接收点距：</translation>
    </message>
    <message>
        <source>R-Point Start No.:</source>
        <translation>接收点起始号：</translation>
    </message>
    <message>
        <source>R-Point End No.:</source>
        <translation>接收点终止号：</translation>
    </message>
    <message>
        <source>R-Point Step:</source>
        <translation>接收点号步长：</translation>
    </message>
    <message>
        <source>R-Point Base:</source>
        <translation>接收点号位数：</translation>
    </message>
    <message>
        <source>Line Start No.:</source>
        <translation>起始线号：</translation>
    </message>
    <message>
        <source>Point Start No.:</source>
        <translation>起始点号：</translation>
    </message>
    <message>
        <source>Start North:</source>
        <translation>起始北坐标：</translation>
    </message>
    <message>
        <source>Start East:</source>
        <translation>起始东坐标：</translation>
    </message>
    <message>
        <source>Azimuth:</source>
        <translation>方位角：</translation>
    </message>
    <message>
        <source>Reverse of receiving line</source>
        <translation>接收线反向</translation>
    </message>
    <message>
        <source>S-Line Dist:</source>
        <translation>激发线距：</translation>
    </message>
    <message>
        <source>S-Line Start No.:</source>
        <translation>激发线起始号：</translation>
    </message>
    <message>
        <source>S-Line End No.:</source>
        <translation>激发线终止号：</translation>
    </message>
    <message>
        <source>S-Line Step:</source>
        <translation>激发线号步长：</translation>
    </message>
    <message>
        <source>S-Line Base:</source>
        <translation>激发线号位数：</translation>
    </message>
    <message>
        <source>S-Point Dist:</source>
        <translation>激发点距：</translation>
    </message>
    <message>
        <source>S-Point Start No.:</source>
        <translation>激发点起始号：</translation>
    </message>
    <message>
        <source>S-Point End No.:</source>
        <translation>激发点终止号：</translation>
    </message>
    <message>
        <source>S-Point Step:</source>
        <translation>激发点号步长：</translation>
    </message>
    <message>
        <source>S-Point Base:</source>
        <translation>激发点号位数：</translation>
    </message>
    <message>
        <source>Excitation line reversal</source>
        <translation>激发线反向</translation>
    </message>
    <message>
        <source>Receive Line</source>
        <translation>接收线</translation>
    </message>
    <message>
        <source>Send Line</source>
        <translation>激发线</translation>
    </message>
    <message>
        <source>Design Line Dialog</source>
        <translation>测线设计</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>起点</translation>
    </message>
    <message>
        <source>Line Type:</source>
        <translation>测线类型：</translation>
    </message>
    <message>
        <source>Show on Map</source>
        <translation>在地图上显示</translation>
    </message>
    <message>
        <source>Zoom the map to the grid of the line type above</source>
        <translation>将地图缩放到上方测线类型的网格</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Replace the whole design by both grids</source>
        <translation>用两个网格替换全部设计</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Keep the parameters; the design stays as it is</source>
        <translation>只保留参数，设计不变</translation>
    </message>
    <message>
        <source>Calc R</source>
        <translation>计算接收线</translation>
    </message>
    <message>
        <source>Replace the whole design, source points too, by the receiver grid</source>
        <translation>用接收点网格替换全部设计，包括激发点</translation>
    </message>
    <message>
        <source>Calc S</source>
        <translation>计算激发线</translation>
    </message>
    <message>
        <source>Replace the whole design, receiver points too, by the source grid</source>
        <translation>用激发点网格替换全部设计，包括接收点</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Change nothing</source>
        <translation>什么也不改变</translation>
    </message>
    <message>
        <source>The start is the position of point %1.</source>
        <translation>起点取点 %1 的坐标。</translation>
    </message>
    <message>
        <source>Both places are the same. The azimuth stays as it was.</source>
        <translation>两处位置相同，方位角保持不变。</translation>
    </message>
    <message>
        <source>注意</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>步长禁止输入0。</source>
        <translation>步长禁止输入0。</translation>
    </message>
</context>
<context>
    <name>DlgEditSteps</name>
    <message>
        <source>Steps</source>
        <translation>操作步骤</translation>
    </message>
    <message>
        <source>&amp;Go To</source>
        <translation>转到(&amp;G)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>The project before these steps</source>
        <translation>这些步骤之前的工程</translation>
    </message>
    <message>
        <source>Double-click a step to see the project as it was right after it.</source>
        <translation>双击某一步骤，可查看该步骤刚完成时的工程。</translation>
    </message>
</context>
<context>
    <name>DlgEmptyPtResult</name>
    <message>
        <source>Empty Point Check Result</source>
        <translation>空点检查结果</translation>
    </message>
</context>
<context>
    <name>DlgExportReport</name>
    <message>
        <source>Export Report</source>
        <translation>导出报告</translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation>导出(&amp;X)</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>取消(&amp;L)</translation>
    </message>
    <message>
        <source>Results in the reports: %1 of %2.</source>
        <translation>报告中的成果：%1 个，共 %2 个。</translation>
    </message>
    <message>
        <source>The file exists and will be replaced.</source>
        <translation>该文件已存在，将被替换。</translation>
    </message>
    <message>
        <source>%1 of %2 files exist and will be replaced.</source>
        <translation>%2 个文件中有 %1 个已存在，将被替换。</translation>
    </message>
    <message>
        <source>Go on?</source>
        <translation>要继续吗？</translation>
    </message>
</context>
<context>
    <name>DlgHistory</name>
    <message>
        <source>&amp;Restore These</source>
        <translation>恢复所选(&amp;R)</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>&amp;Edit Reason</source>
        <translation>编辑原因(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;History of This Point</source>
        <translation>此点的历史(&amp;H)</translation>
    </message>
    <message>
        <source>Show on the &amp;Map</source>
        <translation>在地图上显示(&amp;M)</translation>
    </message>
    <message>
        <source>No action passes the filters.</source>
        <translation>没有操作符合筛选条件。</translation>
    </message>
    <message>
        <source>There is no history yet: it begins with the next change.</source>
        <translation>还没有历史记录：从下一次更改开始。</translation>
    </message>
    <message>
        <source>Actions: %1, not saved yet: %2. Changes: %3, selected: %4</source>
        <translation>操作：%1，尚未保存：%2。更改：%3，选中：%4</translation>
    </message>
    <message>
        <source>Put the points back as they were before the action. It can be undone.</source>
        <translation>把这些点恢复为该操作之前的状态。可以撤销。</translation>
    </message>
    <message>
        <source>Select changes in the lower table, all of one action, to put their points back.</source>
        <translation>请在下面的表格中选中同一操作的更改，即可恢复其中的点。</translation>
    </message>
</context>
<context>
    <name>DlgImportSummary</name>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Import Success!</source>
        <translation>导入成功！</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;All</source>
        <translation>全部复制(&amp;A)</translation>
    </message>
    <message>
        <source>Of each kind the first %1 are listed.</source>
        <translation>每类只列出前 %1 条。</translation>
    </message>
    <message>
        <source>Click a row to see its point, or where it stands in the file.</source>
        <translation>单击一行可查看对应的点或其在文件中的位置。</translation>
    </message>
    <message>
        <source>&amp;Open the File</source>
        <translation>打开文件(&amp;O)</translation>
    </message>
    <message>
        <source>The project does not have the point.</source>
        <translation>工程中没有该点。</translation>
    </message>
    <message>
        <source>Result %1 of &quot;%2&quot;: %3</source>
        <translation>“%2”第 %1 个成果：%3</translation>
    </message>
    <message>
        <source>Line %1 of &quot;%2&quot;: %3</source>
        <translation>“%2”第 %1 行：%3</translation>
    </message>
    <message>
        <source>Open the File</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>No program could be started that opens &quot;%1&quot;.</source>
        <translation>无法启动打开“%1”的程序。</translation>
    </message>
</context>
<context>
    <name>DlgItemProperties</name>
    <message>
        <source>Properties of %1</source>
        <translation>%1 的属性</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>DlgNewProject</name>
    <message>
        <source>New Project</source>
        <translation>新建工程</translation>
    </message>
    <message>
        <source>The project will be in &quot;%1&quot;.</source>
        <translation>工程将保存在“%1”。</translation>
    </message>
</context>
<context>
    <name>DlgOverviews</name>
    <message>
        <source>Building Overviews</source>
        <translation>正在建立金字塔</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Images waiting: %1</source>
        <translation>等待中的图像：%1</translation>
    </message>
</context>
<context>
    <name>DlgPrintMap</name>
    <message>
        <source>&amp;Fit the area</source>
        <translation>适合范围(&amp;F)</translation>
    </message>
    <message>
        <source>Print / Export Map</source>
        <translation>打印/导出地图</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>All points</source>
        <translation>全部点</translation>
    </message>
    <message>
        <source>What the map shows</source>
        <translation>地图显示的范围</translation>
    </message>
    <message>
        <source>How sharp the map is: dots to an inch</source>
        <translation>地图的清晰程度：每英寸点数</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>The largest round scale at which the whole area is seen</source>
        <translation>能看到整个范围的最大的整比例尺</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>标题(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>纸张(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>方向(&amp;O)：</translation>
    </message>
    <message>
        <source>&amp;Area:</source>
        <translation>范围(&amp;A)：</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>比例尺(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>分辨率(&amp;R)：</translation>
    </message>
    <message>
        <source>Sa&amp;ve As...</source>
        <translation>另存为(&amp;V)...</translation>
    </message>
    <message>
        <source>Write a PDF file, a picture (PNG), or a GeoTIFF of the map alone</source>
        <translation>写出 PDF 文件、图片（PNG），或只有地图本身的 GeoTIFF</translation>
    </message>
    <message>
        <source>Pri&amp;nt...</source>
        <translation>打印(&amp;N)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>This computer has no printer</source>
        <translation>此计算机没有打印机</translation>
    </message>
    <message>
        <source>PDF file(*.pdf);;Picture(*.png);;GeoTIFF of the map alone(*.tif *.tiff)</source>
        <translation>PDF 文件(*.pdf);;图片(*.png);;只有地图的 GeoTIFF(*.tif *.tiff)</translation>
    </message>
    <message>
        <source>Writing the map...</source>
        <translation>正在写出地图...</translation>
    </message>
    <message>
        <source>Printing the map...</source>
        <translation>正在打印地图...</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>正在取消...</translation>
    </message>
    <message>
        <source>The map could not be made; the log tells why.</source>
        <translation>未能生成地图；原因见日志。</translation>
    </message>
</context>
<context>
    <name>DlgProjectPlace</name>
    <message>
        <source>Project Name:</source>
        <translation>工程名称：</translation>
    </message>
    <message>
        <source>Project Path:</source>
        <translation>工程路径：</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Choose Project Directory</source>
        <translation>选择工程目录</translation>
    </message>
    <message>
        <source>The open project itself is in this folder. Choose another name or folder.</source>
        <translation>当前打开的工程就在此文件夹中。请另选名称或文件夹。</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot;</source>
        <translation>使用“%1”</translation>
    </message>
</context>
<context>
    <name>DlgProjectSet</name>
    <message>
        <source>Project Settings</source>
        <translation>工程设置</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Coordinate System</source>
        <translation>坐标系统</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>DlgQCParamSet</name>
    <message>
        <source>Quality Specification</source>
        <translation>质量规范</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>The limits cannot be shown, and stay as they are: the file &quot;%1&quot; cannot be read (%2).</source>
        <translation>无法显示质量限差，限差保持不变：文件“%1”无法读取（%2）。</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>请确认输入的复测代码是不为&apos; C &apos;的单个字母</source>
        <translation>请确认输入的复测代码是不为&apos; C &apos;的单个字母</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>问题</translation>
    </message>
</context>
<context>
    <name>DlgQCResult</name>
    <message>
        <source>Quality Check Result</source>
        <translation>质量检查结果</translation>
    </message>
</context>
<context>
    <name>DlgRepeatChoice</name>
    <message>
        <source>No point was measured more than once.</source>
        <translation>没有被多次测量的点。</translation>
    </message>
    <message>
        <source>Points measured more than once: %1, with %2 results.</source>
        <translation>多次测量的点：%1 个，共 %2 个成果。</translation>
    </message>
    <message>
        <source>Points that stay as they are, too far apart for a mean: %1.</source>
        <translation>相差过大、不能取平均而保持原样的点：%1 个。</translation>
    </message>
    <message>
        <source>The tolerance is a number from 0 to %1 metres.</source>
        <translation>限差为 0 到 %1 米之间的数字。</translation>
    </message>
    <message>
        <source>Resolve Repeats</source>
        <translation>重复测量取舍</translation>
    </message>
    <message>
        <source>if they differ by at &amp;most</source>
        <translation>相差不超过(&amp;M)</translation>
    </message>
    <message>
        <source>The first</source>
        <translation>第一次</translation>
    </message>
    <message>
        <source>The last</source>
        <translation>最后一次</translation>
    </message>
    <message>
        <source>The most accurate</source>
        <translation>精度最高的</translation>
    </message>
    <message>
        <source>The weighted mean</source>
        <translation>加权平均值</translation>
    </message>
    <message>
        <source>The most accurate: a fixed solution before others, then the smallest HRMS and VRMS. The mean is weighted by HRMS and VRMS.</source>
        <translation>精度最高的：固定解优先，其次 HRMS 和 VRMS 最小。平均值按 HRMS 和 VRMS 加权。</translation>
    </message>
    <message>
        <source>Points whose measurements differ by more, on the plane or in height, stay as they are.</source>
        <translation>各次测量在平面或高程上相差更大的点保持原样。</translation>
    </message>
    <message>
        <source>&amp;Of several measurements stays:</source>
        <translation>多次测量中保留(&amp;O)：</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Resolve &amp;Selected (%1)</source>
        <translation>处理所选(&amp;S) (%1)</translation>
    </message>
    <message>
        <source>Resolve &amp;All (%1)</source>
        <translation>处理全部(&amp;A) (%1)</translation>
    </message>
    <message>
        <source>The results have changed: nothing was resolved.</source>
        <translation>成果已变化：未作任何处理。</translation>
    </message>
    <message>
        <source>Results to be removed, which stay in the history: %1. They no longer count as check shots of their crews and days.</source>
        <translation>将移除的成果（保留在历史记录中）：%1 个。它们不再算作其测量组当天的检核点。</translation>
    </message>
    <message>
        <source>Points resolved: %1. Results removed: %2. Left as they are: %3. Ctrl+Z takes it back.</source>
        <translation>已处理的点：%1。已移除的成果：%2。保持原样：%3。按 Ctrl+Z 撤销。</translation>
    </message>
</context>
<context>
    <name>DlgRepeatPtCheck</name>
    <message>
        <source>Repeat Point Check</source>
        <translation>重复点检查</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Results deleted: %1. %2</source>
        <translation>已删除的成果：%1。%2</translation>
    </message>
    <message>
        <source>&amp;Resolve Repeats...</source>
        <translation>重复测量取舍(&amp;R)...</translation>
    </message>
</context>
<context>
    <name>DlgReportResults</name>
    <message>
        <source>Reports written: %1 of %2.</source>
        <translation>已写出报告：%1 个，共 %2 个。</translation>
    </message>
    <message>
        <source>Export Report</source>
        <translation>导出报告</translation>
    </message>
    <message>
        <source>Their folder: &quot;%1&quot;.</source>
        <translation>所在文件夹：“%1”。</translation>
    </message>
    <message>
        <source>Open (&amp;%1)</source>
        <translation>打开(&amp;%1)</translation>
    </message>
    <message>
        <source>Open &quot;%1&quot;</source>
        <translation>打开“%1”</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>打开文件夹(&amp;F)</translation>
    </message>
</context>
<context>
    <name>DlgResurveyCheckResult</name>
    <message>
        <source>Resurvey Check Result</source>
        <translation>复测点检查结果</translation>
    </message>
</context>
<context>
    <name>DlgSurveyColumns</name>
    <message>
        <source>Survey Columns</source>
        <translation>测量列表列</translation>
    </message>
    <message>
        <source>In the &amp;table</source>
        <translation>列表中显示(&amp;T)</translation>
    </message>
    <message>
        <source>At least one column stays in the table.</source>
        <translation>列表中至少保留一列。</translation>
    </message>
    <message>
        <source>In &amp;exported files</source>
        <translation>导出文件中写出(&amp;E)</translation>
    </message>
    <message>
        <source>Line and point number are always written.</source>
        <translation>线号和点号总是写出。</translation>
    </message>
    <message>
        <source>The columns hold until the program ends: the settings cannot be saved. The window Messages says why.</source>
        <translation>设置无法保存，所选的列只在程序退出前有效。原因见“消息”窗口。</translation>
    </message>
</context>
<context>
    <name>DlgSurveyPoint</name>
    <message>
        <source>&amp;Move the heights by the difference</source>
        <translation>按差值同时改正高程(&amp;M)</translation>
    </message>
    <message>
        <source>Modify Survey Result</source>
        <translation>修改测量成果</translation>
    </message>
    <message>
        <source>A pole that is higher than the crew has typed makes the point lower by as much.</source>
        <translation>对中杆比作业组输入的高多少，点的高程就低多少。</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>&amp;Line:</source>
        <translation>线号(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Point:</source>
        <translation>点号(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Antenna height:</source>
        <translation>天线高(&amp;A)：</translation>
    </message>
    <message>
        <source>&amp;Remarks:</source>
        <translation>备注(&amp;R)：</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Line %1 has no point %2 any more.</source>
        <translation>测线 %1 上已没有点 %2。</translation>
    </message>
    <message>
        <source>The heights stay as they are.</source>
        <translation>高程保持不变。</translation>
    </message>
    <message>
        <source>Elevation %1 → %2 m</source>
        <translation>高程 %1 → %2 m</translation>
    </message>
    <message>
        <source>Altitude %1 → %2 m</source>
        <translation>大地高 %1 → %2 m</translation>
    </message>
    <message>
        <source>Sea height %1 → %2 m</source>
        <translation>海拔高 %1 → %2 m</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Antenna height: %1</source>
        <translation>天线高：%1</translation>
    </message>
    <message>
        <source>Input Correct Param!</source>
        <translation>请输入正确的参数！</translation>
    </message>
    <message>
        <source>Line %1, point %2, measured %3, would be replaced.</source>
        <translation>测线 %1 的点 %2（测量时间 %3）将被替换。</translation>
    </message>
    <message>
        <source>Its surveyor: %1</source>
        <translation>其测量员：%1</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>New Point Name Exist, Want to Overload?</source>
        <translation>新点名已存在，是否覆盖？</translation>
    </message>
</context>
<context>
    <name>DrawExcitationCommand</name>
    <message>
        <source>not show s line</source>
        <translation>隐藏激发线</translation>
    </message>
    <message>
        <source>show s line</source>
        <translation>显示激发线</translation>
    </message>
</context>
<context>
    <name>DrawReceiverCommand</name>
    <message>
        <source>not show r line</source>
        <translation>隐藏接收线</translation>
    </message>
    <message>
        <source>show r line</source>
        <translation>显示接收线</translation>
    </message>
</context>
<context>
    <name>EditKinds</name>
    <message>
        <source>Import %1 design points</source>
        <translation>导入 %1 个设计点</translation>
    </message>
    <message>
        <source>Import %1 results</source>
        <translation>导入 %1 个成果</translation>
    </message>
    <message>
        <source>Delete %1 results</source>
        <translation>删除 %1 个成果</translation>
    </message>
    <message>
        <source>Correct a result</source>
        <translation>修改一个成果</translation>
    </message>
    <message>
        <source>Correct a design point</source>
        <translation>修改一个设计点</translation>
    </message>
    <message>
        <source>Generate %1 design points</source>
        <translation>生成 %1 个设计点</translation>
    </message>
    <message>
        <source>Change quality limits</source>
        <translation>更改质量限差</translation>
    </message>
    <message>
        <source>Change design parameters</source>
        <translation>更改设计参数</translation>
    </message>
    <message>
        <source>Change the coordinate system</source>
        <translation>更改坐标系统</translation>
    </message>
    <message>
        <source>Restore %1 points</source>
        <translation>恢复 %1 个点</translation>
    </message>
    <message>
        <source>Import a design point</source>
        <translation>导入 1 个设计点</translation>
    </message>
    <message>
        <source>Import a result</source>
        <translation>导入 1 个成果</translation>
    </message>
    <message>
        <source>Delete a result</source>
        <translation>删除 1 个成果</translation>
    </message>
    <message>
        <source>Generate a design point</source>
        <translation>生成 1 个设计点</translation>
    </message>
    <message>
        <source>Restore a point</source>
        <translation>恢复 1 个点</translation>
    </message>
    <message>
        <source>Imports of design points</source>
        <translation>导入设计点</translation>
    </message>
    <message>
        <source>Imports of results</source>
        <translation>导入测量成果</translation>
    </message>
    <message>
        <source>Deletions of results</source>
        <translation>删除测量成果</translation>
    </message>
    <message>
        <source>Corrections of results</source>
        <translation>修改测量成果</translation>
    </message>
    <message>
        <source>Corrections of design points</source>
        <translation>修改设计点</translation>
    </message>
    <message>
        <source>Generated designs</source>
        <translation>生成设计</translation>
    </message>
    <message>
        <source>Quality limits</source>
        <translation>质量限差</translation>
    </message>
    <message>
        <source>Design parameters</source>
        <translation>设计参数</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>坐标系统</translation>
    </message>
    <message>
        <source>Restored points</source>
        <translation>恢复点</translation>
    </message>
    <message>
        <source>Rename %1 results</source>
        <translation>改 %1 个成果的点名</translation>
    </message>
    <message>
        <source>Rename a result</source>
        <translation>改一个成果的点名</translation>
    </message>
    <message>
        <source>New names of results</source>
        <translation>成果改名</translation>
    </message>
    <message>
        <source>Accept %1 problems</source>
        <translation>接受 %1 个问题</translation>
    </message>
    <message>
        <source>Accept a problem</source>
        <translation>接受一个问题</translation>
    </message>
    <message>
        <source>Accepted problems</source>
        <translation>接受的问题</translation>
    </message>
    <message>
        <source>Open %1 problems again</source>
        <translation>重新打开 %1 个问题</translation>
    </message>
    <message>
        <source>Open a problem again</source>
        <translation>重新打开一个问题</translation>
    </message>
    <message>
        <source>Problems opened again</source>
        <translation>重新打开的问题</translation>
    </message>
    <message>
        <source>Resolve %1 repeated points</source>
        <translation>处理 %1 个重复测量点</translation>
    </message>
    <message>
        <source>Resolve a repeated point</source>
        <translation>处理一个重复测量点</translation>
    </message>
    <message>
        <source>Resolved repeats</source>
        <translation>重复测量取舍</translation>
    </message>
</context>
<context>
    <name>EditSteps</name>
    <message>
        <source>Taken back: %1</source>
        <translation>已撤销：%1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>已重做：%1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Taken back: %1 steps</source>
        <translation>已撤销：%1 步</translation>
    </message>
    <message>
        <source>Done again: %1 steps</source>
        <translation>已重做：%1 步</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can be taken back now, but not later: to keep what it replaced takes %2 MiB, more than the %3 MiB for all steps.</source>
        <translation>“%1”现在可以撤销，以后不能：保留被替换的数据需要 %2 MiB，超过全部步骤可用的 %3 MiB。</translation>
    </message>
    <message>
        <source>The steps before it cannot be taken back later either: %1.</source>
        <translation>在它之前的 %1 个步骤以后也不能撤销。</translation>
    </message>
    <message>
        <source>Take it back?</source>
        <translation>现在撤销吗？</translation>
    </message>
</context>
<context>
    <name>EmptyPointCheck</name>
    <message>
        <source>Empty Check</source>
        <translation>空点检查</translation>
    </message>
</context>
<context>
    <name>EmptyPointCheckCommand</name>
    <message>
        <source>Empty Check Complete!</source>
        <translation>空点检查完成！</translation>
    </message>
</context>
<context>
    <name>EpsgDatumShift</name>
    <message>
        <source>accuracy unknown</source>
        <translation>精度未知</translation>
    </message>
</context>
<context>
    <name>EpsgSystem</name>
    <message>
        <source>There is no coordinate system EPSG:%1.</source>
        <translation>没有坐标系统 EPSG:%1。</translation>
    </message>
    <message>
        <source>EPSG:%1 is no projected coordinate system.</source>
        <translation>EPSG:%1 不是投影坐标系统。</translation>
    </message>
    <message>
        <source>EPSG:%1 uses the map projection &quot;%2&quot;, which is not supported.</source>
        <translation>EPSG:%1 使用的地图投影“%2”不受支持。</translation>
    </message>
    <message>
        <source>EPSG:%1 (%2) is geographic; choose a projected system.</source>
        <translation>EPSG:%1（%2）是地理坐标系统；请选择投影坐标系统。</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>The file &quot;%1&quot; exists already. Replace it?</source>
        <translation>文件“%1”已经存在，是否替换？</translation>
    </message>
</context>
<context>
    <name>FileExports</name>
    <message>
        <source>Input Saving File Name</source>
        <translation>输入保存文件名</translation>
    </message>
    <message>
        <source>Points: %1, lines: %2.</source>
        <translation>点数：%1，测线数：%2。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Export Failed!</source>
        <translation>导出失败！</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Export Succeed!</source>
        <translation>导出成功！</translation>
    </message>
    <message>
        <source>&quot;View &gt; Survey Columns&quot; leaves out the line number or the point number of exported files. Without both no point is written.</source>
        <translation>“视图 &gt; 测量列表列”中导出列缺少测线号或点号。两者缺一，就不会写出任何点。</translation>
    </message>
    <message>
        <source>Export Succeed, Open it?</source>
        <translation>导出成功，是否打开？</translation>
    </message>
    <message>
        <source>The desktop has no program that opens &quot;%1&quot;.</source>
        <translation>桌面没有可以打开“%1”的程序。</translation>
    </message>
</context>
<context>
    <name>FileImports</name>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Import Success!</source>
        <translation>导入成功！</translation>
    </message>
    <message>
        <source>Choose Open File</source>
        <translation>选择要打开的文件</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Import Failed!</source>
        <translation>导入失败！</translation>
    </message>
    <message>
        <source>A file of points is imported into a project. Open or create the project first, then import the file.</source>
        <translation>点数据文件只能导入到工程中。请先打开或新建工程，再导入该文件。</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Line or point, or line/point</source>
        <translation>线号或点号，或 线号/点号</translation>
    </message>
    <message>
        <source>Find lines and points</source>
        <translation>查找测线和点</translation>
    </message>
    <message>
        <source>Previous match (Shift+F3)</source>
        <translation>上一个 (Shift+F3)</translation>
    </message>
    <message>
        <source>Next match (F3)</source>
        <translation>下一个 (F3)</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>关闭 (Esc)</translation>
    </message>
    <message>
        <source>No project is open.</source>
        <translation>没有打开的工程。</translation>
    </message>
    <message>
        <source>The project has no points.</source>
        <translation>工程中没有点。</translation>
    </message>
    <message>
        <source>No match.</source>
        <translation>没有找到。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>第 %1 个，共 %2 个</translation>
    </message>
    <message>
        <source>(%1 found)</source>
        <translation>（找到 %1 个）</translation>
    </message>
    <message>
        <source>The best %1 matches are listed. Type more of the number to see others.</source>
        <translation>只列出最符合的 %1 个。多输入几位可看到其他的。</translation>
    </message>
    <message>
        <source>survey line %1</source>
        <translation>测量测线 %1</translation>
    </message>
    <message>
        <source>design line %1</source>
        <translation>设计测线 %1</translation>
    </message>
    <message>
        <source>survey result %1/%2</source>
        <translation>测量成果 %1/%2</translation>
    </message>
    <message>
        <source>design point %1/%2</source>
        <translation>设计点 %1/%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>3 of 50: survey line 1001</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>FoundList</name>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线号</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点号</translation>
    </message>
    <message>
        <source>Survey</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>设计</translation>
    </message>
    <message>
        <source>receiver</source>
        <translation>接收</translation>
    </message>
    <message>
        <source>source</source>
        <translation>激发</translation>
    </message>
    <message>
        <source>whole line, points: %1</source>
        <translation>整条测线，点数：%1</translation>
    </message>
</context>
<context>
    <name>FrameMenus</name>
    <message>
        <source>Go to the menus</source>
        <translation>进入菜单</translation>
    </message>
</context>
<context>
    <name>GridForm</name>
    <message>
        <source>R-Line</source>
        <translation>接收线</translation>
    </message>
    <message>
        <source>R-Point</source>
        <translation>接收点</translation>
    </message>
    <message>
        <source>S-Line</source>
        <translation>激发线</translation>
    </message>
    <message>
        <source>S-Point</source>
        <translation>激发点</translation>
    </message>
</context>
<context>
    <name>GridStart</name>
    <message>
        <source>Pick Start on Map</source>
        <translation>在地图上选取起点</translation>
    </message>
    <message>
        <source>Take the start position from a click on the map, or from the design point there</source>
        <translation>取地图上单击处的坐标，或该处设计点的坐标</translation>
    </message>
    <message>
        <source>Pick Azimuth on Map</source>
        <translation>在地图上选取方位角</translation>
    </message>
    <message>
        <source>Take the azimuth from two clicks on the map, or from the design points there</source>
        <translation>由地图上单击的两处或该处的设计点求方位角</translation>
    </message>
    <message>
        <source>How the azimuth is typed: decimal degrees, or degrees with two digits of minutes and seconds</source>
        <translation>方位角的键入方式：十进制度，或度加两位分和秒</translation>
    </message>
</context>
<context>
    <name>GroupClasses</name>
    <message>
        <source>none given</source>
        <translation>未注明</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>以及其他 %1 个</translation>
    </message>
</context>
<context>
    <name>GroupKeyBox</name>
    <message>
        <source>All Together</source>
        <translation>全部合计</translation>
    </message>
</context>
<context>
    <name>GuideCommand</name>
    <message>
        <source>User Guide</source>
        <translation>用户指南</translation>
    </message>
    <message>
        <source>The guide &quot;%1&quot; is not installed.</source>
        <translation>没有安装指南“%1”。</translation>
    </message>
</context>
<context>
    <name>GuideWindow</name>
    <message>
        <source>Find in the guide</source>
        <translation>在指南中查找</translation>
    </message>
    <message>
        <source>Find the place before</source>
        <translation>查找上一处</translation>
    </message>
    <message>
        <source>Find the next place</source>
        <translation>查找下一处</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>没有找到</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>第 %1 处，共 %2 处</translation>
    </message>
</context>
<context>
    <name>HistoryActionModel</name>
    <message>
        <source>A double click edits the reason, until the project is saved.</source>
        <translation>保存工程之前，双击可以编辑原因。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Person</source>
        <translation>人员</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
</context>
<context>
    <name>HistoryFilterBar</name>
    <message>
        <source>Only these &amp;days:</source>
        <translation>仅这些日期(&amp;D)：</translation>
    </message>
    <message>
        <source>C&amp;lear Filters</source>
        <translation>清除筛选(&amp;L)</translation>
    </message>
    <message>
        <source>All persons</source>
        <translation>所有人员</translation>
    </message>
    <message>
        <source>All actions</source>
        <translation>所有操作</translation>
    </message>
    <message>
        <source>line/point, such as 1001/10015001</source>
        <translation>线号/点号，如 1001/10015001</translation>
    </message>
    <message>
        <source>&amp;Person:</source>
        <translation>人员(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Action:</source>
        <translation>操作(&amp;A)：</translation>
    </message>
    <message>
        <source>P&amp;oint:</source>
        <translation>点(&amp;O)：</translation>
    </message>
    <message>
        <source>to</source>
        <translation>至</translation>
    </message>
    <message>
        <source>The last day is before the first: all days are shown.</source>
        <translation>最后一天早于第一天：显示所有日期。</translation>
    </message>
    <message>
        <source>A point is named by its line and its number, such as 1001/10015001.</source>
        <translation>点由线号和点号指定，如 1001/10015001。</translation>
    </message>
</context>
<context>
    <name>HistoryItemModel</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>What</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>测线</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>原值</translation>
    </message>
    <message>
        <source>After</source>
        <translation>新值</translation>
    </message>
</context>
<context>
    <name>HistoryTexts</name>
    <message>
        <source>Coordinate system</source>
        <translation>坐标系统</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>测量成果</translation>
    </message>
    <message>
        <source>Design point</source>
        <translation>设计点</translation>
    </message>
    <message>
        <source>Quality limit</source>
        <translation>质量限差</translation>
    </message>
    <message>
        <source>Design parameter</source>
        <translation>设计参数</translation>
    </message>
    <message>
        <source>new</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>done and taken back</source>
        <translation>已执行并撤销</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>已撤销</translation>
    </message>
    <message>
        <source>done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>taken back, not saved yet</source>
        <translation>已撤销，尚未保存</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>尚未保存</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>accepted</source>
        <translation>已接受</translation>
    </message>
    <message>
        <source>open again</source>
        <translation>重新打开</translation>
    </message>
</context>
<context>
    <name>ImportFindingsModel</name>
    <message>
        <source>Finding</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Line of the File</source>
        <translation>文件行号</translation>
    </message>
    <message>
        <source>Line Num</source>
        <translation>线号</translation>
    </message>
    <message>
        <source>Point Num</source>
        <translation>点号</translation>
    </message>
    <message>
        <source>What Was Found</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>成果</translation>
    </message>
</context>
<context>
    <name>ImportSummary</name>
    <message>
        <source>Line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>Further lines skipped: %1.</source>
        <translation>另外还跳过 %1 行。</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: lines read: %2, points added: %3, points replaced: %4, lines skipped: %5.</source>
        <translation>“%1”：读取 %2 行，新增 %3 点，替换 %4 点，跳过 %5 行。</translation>
    </message>
    <message>
        <source>Rows replaced by a later row of the same point in the file: %1.</source>
        <translation>被文件中同一点的后续行取代的行：%1。</translation>
    </message>
    <message>
        <source>Further fields that cannot be read: %1.</source>
        <translation>其余无法识别的字段：%1。</translation>
    </message>
    <message>
        <source>Further fields with such bytes: %1.</source>
        <translation>其余含有此类字节的字段：%1。</translation>
    </message>
    <message>
        <source>Fields that cannot be read and became 0: %1.</source>
        <translation>无法识别而取为 0 的字段：%1。</translation>
    </message>
    <message>
        <source>Fields taken for something else: %1.</source>
        <translation>按其他内容处理的字段：%1。</translation>
    </message>
    <message>
        <source>Further fields taken for something else: %1.</source>
        <translation>其余按其他内容处理的字段：%1。</translation>
    </message>
    <message>
        <source>Lines with too many fields, of which the last are cut off: %1. A comma in a text begins a new field.</source>
        <translation>字段过多而截去末尾字段的行：%1。文本中的逗号会开始一个新字段。</translation>
    </message>
    <message>
        <source>Further lines with too many fields: %1.</source>
        <translation>其余字段过多的行：%1。</translation>
    </message>
    <message>
        <source>Lines with fewer fields than the heading: %1. What is missing is empty.</source>
        <translation>字段少于列标题的行：%1。缺少的字段留空。</translation>
    </message>
    <message>
        <source>Further lines with fewer fields: %1.</source>
        <translation>其余字段不足的行：%1。</translation>
    </message>
    <message>
        <source>The file&apos;s encoding is %1.</source>
        <translation>文件的编码为 %1。</translation>
    </message>
    <message>
        <source>Fields with bytes that are no %1: %2. If the file has another encoding, save it as UTF-8 and import it again.</source>
        <translation>含有非 %1 字节的字段：%2。如果文件是其他编码，请另存为 UTF-8 后重新导入。</translation>
    </message>
    <message>
        <source>Rows without a line number: %1. A check point goes to the line in its number, any other to &quot;%2&quot;.</source>
        <translation>没有线号的行：%1。检查点归入其点号中的测线，其他点归入“%2”。</translation>
    </message>
    <message>
        <source>Fields of whole numbers whose decimals were dropped: %1.</source>
        <translation>舍去小数的整数字段：%1。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>The file holds no row of a point.</source>
        <translation>文件中没有测点数据行。</translation>
    </message>
    <message>
        <source>The point stands in the file before; the later row counts.</source>
        <translation>文件前面已有该点，以后面的行为准。</translation>
    </message>
    <message>
        <source>The project had the point; it has the values of the file now.</source>
        <translation>工程中原有该点，现已采用文件中的值。</translation>
    </message>
    <message>
        <source>Skipped line</source>
        <translation>跳过的行</translation>
    </message>
    <message>
        <source>Damaged bytes</source>
        <translation>损坏的字节</translation>
    </message>
    <message>
        <source>Unread field</source>
        <translation>无法读取的字段</translation>
    </message>
    <message>
        <source>Changed field</source>
        <translation>改动的字段</translation>
    </message>
    <message>
        <source>Cut off fields</source>
        <translation>截去的字段</translation>
    </message>
    <message>
        <source>Missing fields</source>
        <translation>缺少的字段</translation>
    </message>
    <message>
        <source>Repeated row</source>
        <translation>重复的行</translation>
    </message>
    <message>
        <source>Replaced point</source>
        <translation>被替换的点</translation>
    </message>
    <message>
        <source>The database holds no result.</source>
        <translation>数据库中没有成果。</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: results read: %2, points added: %3, points replaced: %4, results skipped: %5.</source>
        <translation>“%1”：读取 %2 个成果，新增 %3 个点，替换 %4 个点，跳过 %5 个成果。</translation>
    </message>
    <message>
        <source>Result %1: %2</source>
        <translation>成果 %1：%2</translation>
    </message>
</context>
<context>
    <name>Kml</name>
    <message>
        <source>point &quot;%1&quot; of line &quot;%2&quot;</source>
        <translation>测线“%2”的点“%1”</translation>
    </message>
    <message>
        <source>Points that have no place on the globe and were left out: %1. The first is %2: %3</source>
        <translation>在地球上没有位置而被略去的点：%1 个。第一个是%2：%3</translation>
    </message>
    <message>
        <source>the project has no usable coordinate system. %1</source>
        <translation>工程没有可用的坐标系统。%1</translation>
    </message>
    <message>
        <source>the library GDAL has no driver for KML here</source>
        <translation>此处的 GDAL 库没有 KML 驱动</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>测线</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>receiver</source>
        <translation>接收点</translation>
    </message>
    <message>
        <source>source</source>
        <translation>激发点</translation>
    </message>
    <message>
        <source>North</source>
        <translation>北坐标</translation>
    </message>
    <message>
        <source>East</source>
        <translation>东坐标</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>高程</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点数</translation>
    </message>
    <message>
        <source>Solution</source>
        <translation>解类型</translation>
    </message>
    <message>
        <source>Horizontal accuracy</source>
        <translation>水平精度</translation>
    </message>
    <message>
        <source>Vertical accuracy</source>
        <translation>垂直精度</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
</context>
<context>
    <name>LayerWindow</name>
    <message>
        <source>&amp;Opacity</source>
        <translation>不透明度(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Zoom to Item</source>
        <translation>缩放到此项(&amp;Z)</translation>
    </message>
    <message>
        <source>Move Item &amp;Up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move Item &amp;Down</source>
        <translation>下移(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Remove Item</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>Item &amp;Properties</source>
        <translation>属性(&amp;P)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was removed from the map. Its file stays as it is.</source>
        <translation>已从地图上移除“%1”，其文件保持不变。</translation>
    </message>
</context>
<context>
    <name>LineHeightPlot</name>
    <message>
        <source>Height differences along the lines</source>
        <translation>沿测线的高差</translation>
    </message>
    <message>
        <source>None of the results has a design elevation.</source>
        <translation>所有成果都没有设计高程。</translation>
    </message>
    <message>
        <source>Results: %1, without a design elevation: %2.</source>
        <translation>成果：%1，无设计高程：%2。</translation>
    </message>
    <message>
        <source>Points of line %1</source>
        <translation>测线 %1 的点</translation>
    </message>
    <message>
        <source>Lines, point by point</source>
        <translation>测线，逐点</translation>
    </message>
    <message>
        <source>Height difference (m)</source>
        <translation>高差 (m)</translation>
    </message>
    <message>
        <source>mean: %1 m</source>
        <translation>平均值：%1 m</translation>
    </message>
    <message>
        <source>mean: %1 m, standard deviation: %2 m</source>
        <translation>平均值：%1 m，标准差：%2 m</translation>
    </message>
    <message>
        <source>limit: %1 m</source>
        <translation>限差：%1 m</translation>
    </message>
</context>
<context>
    <name>LineKinds</name>
    <message>
        <source>The same at more points of the line: %1.</source>
        <translation>该测线还有 %1 个点相同。</translation>
    </message>
    <message>
        <source>%1 m to %2, where points of the line are %3 m apart.</source>
        <translation>到 %2 的距离为 %1 m，而本测线的点距为 %3 m。</translation>
    </message>
    <message>
        <source>The next point, %1, is only %2 m away, but between them numbers are missing: %3.</source>
        <translation>下一个点 %1 只相距 %2 m，但两者之间缺 %3 个点号。</translation>
    </message>
    <message>
        <source>The next point is %1, %2 m away; numbers missing between them: %3.</source>
        <translation>下一个点是 %1，相距 %2 m；两者之间缺 %3 个点号。</translation>
    </message>
    <message>
        <source>Its azimuth is %1 degrees, that of %2 is %3.</source>
        <translation>它的方位角是 %1 度，%2 的方位角是 %3 度。</translation>
    </message>
    <message>
        <source>Stands %1 m beside the line.</source>
        <translation>偏离测线 %1 m。</translation>
    </message>
    <message>
        <source>The numbers of the line run the other way than those of the lines beside it.</source>
        <translation>该测线的点号走向与旁边的测线相反。</translation>
    </message>
    <message>
        <source>Stands in reversed order with %1.</source>
        <translation>与 %1 的顺序颠倒。</translation>
    </message>
    <message>
        <source>From here to %1 the numbers run against the line; points: %2.</source>
        <translation>从这里到 %1 的 %2 个点，点号走向与测线相反。</translation>
    </message>
    <message>
        <source>Stands %1 m from %2.</source>
        <translation>与 %2 只相距 %1 m。</translation>
    </message>
    <message>
        <source>Points of line %1 lie between points of this line, the first is %2; points: %3.</source>
        <translation>测线 %1 有 %3 个点夹在本测线的点之间，第一个是 %2。</translation>
    </message>
    <message>
        <source>%1 m above its neighbours in the line.</source>
        <translation>比测线上的相邻点高 %1 m。</translation>
    </message>
    <message>
        <source>%1 m below its neighbours in the line.</source>
        <translation>比测线上的相邻点低 %1 m。</translation>
    </message>
</context>
<context>
    <name>LineTree</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>全部展开</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>全部折叠</translation>
    </message>
</context>
<context>
    <name>ListProblems</name>
    <message>
        <source>Problems</source>
        <translation>问题</translation>
    </message>
</context>
<context>
    <name>LoadOnlineMapCommand</name>
    <message>
        <source>close online map</source>
        <translation>关闭在线地图</translation>
    </message>
    <message>
        <source>show online map</source>
        <translation>显示在线地图</translation>
    </message>
</context>
<context>
    <name>LumMessageBox</name>
    <message>
        <source>&amp;Do not show again</source>
        <translation>不再显示(&amp;D)</translation>
    </message>
</context>
<context>
    <name>MainFrame</name>
    <message>
        <source>[read-only]</source>
        <translation>[只读]</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file that can be opened here.</source>
        <translation>“%1”不是可以在此打开的文件。</translation>
    </message>
</context>
<context>
    <name>MapGround</name>
    <message>
        <source>Parts of the base map &quot;%1&quot; did not come in time.</source>
        <translation>底图“%1”的一部分没有及时到达。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lies outside of the picture.</source>
        <translation>“%1”在图片范围之外。</translation>
    </message>
</context>
<context>
    <name>MapSheet</name>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1: survey results</source>
        <translation>%1：测量成果</translation>
    </message>
    <message>
        <source>%1: design</source>
        <translation>%1：设计测线</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>There is nothing to print: the project has no survey results.</source>
        <translation>没有可打印的内容：工程中没有测量成果。</translation>
    </message>
    <message>
        <source>There is nothing to print: the project has no design points.</source>
        <translation>没有可打印的内容：工程中没有设计点。</translation>
    </message>
    <message>
        <source>A picture of %1 can have up to %2 dots to an inch.</source>
        <translation>%1 的图片每英寸最多 %2 点。</translation>
    </message>
    <message>
        <source>At this scale the paper shows a part of the area only.</source>
        <translation>在此比例尺下，图纸只能显示范围的一部分。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends neither with .pdf nor with .png or .tif.</source>
        <translation>“%1”的扩展名不是 .pdf、.png 或 .tif。</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2 on %3.</source>
        <translation>“%1”：比例尺 %2，纸张 %3。</translation>
    </message>
    <message>
        <source>Cancelled; no file was written.</source>
        <translation>已取消，没有写出文件。</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
    <message>
        <source>The project has no coordinate system; the file has coordinates alone.</source>
        <translation>工程没有坐标系统，文件中只有坐标。</translation>
    </message>
    <message>
        <source>The file has the map&apos;s place in its coordinates, but not the coordinate system itself.</source>
        <translation>文件中有地图的坐标位置，但没有坐标系统本身。</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>工程</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>坐标系统</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>比例尺</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot print.</source>
        <translation>打印机“%1”无法打印。</translation>
    </message>
    <message>
        <source>Cancelled; nothing was printed.</source>
        <translation>已取消，没有打印。</translation>
    </message>
    <message>
        <source>There is not enough memory to print the map.</source>
        <translation>内存不足，无法打印地图。</translation>
    </message>
    <message>
        <source>The map was printed, %1 on %2.</source>
        <translation>地图已打印，比例尺 %1，纸张 %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is written, but not complete: %2</source>
        <translation>“%1”已写出，但不完整：%2</translation>
    </message>
    <message>
        <source>The map was printed, but is not complete: %1</source>
        <translation>地图已打印，但不完整：%1</translation>
    </message>
    <message>
        <source>Design points</source>
        <translation>设计点</translation>
    </message>
    <message>
        <source>receivers</source>
        <translation>接收点</translation>
    </message>
    <message>
        <source>sources</source>
        <translation>激发点</translation>
    </message>
</context>
<context>
    <name>NameProblems</name>
    <message>
        <source>Is probably %1: it is %2 m from %3, and no point has its name.</source>
        <translation>可能是 %1：距 %3 只有 %2 m，而没有点叫它的点名。</translation>
    </message>
    <message>
        <source>Is probably %1, %2 m away; its own is %3 m away.</source>
        <translation>可能是 %1，相距 %2 m；离它自己的设计点 %3 m。</translation>
    </message>
    <message>
        <source>Stands where %1 does, %2 m from its design point; its own is %3 m away. It is probably one more measurement of %1.</source>
        <translation>与 %1 在同一位置，距其设计点 %2 m；离它自己的设计点 %3 m。它可能是 %1 的又一次测量。</translation>
    </message>
    <message>
        <source>Its name and that of %1 are probably exchanged: it is %2 m from the design point of %1; its own is %3 m away.</source>
        <translation>它与 %1 的点名可能互换了：距 %1 的设计点 %2 m，离它自己的设计点 %3 m。</translation>
    </message>
    <message>
        <source>Has no result, but the result %1 stands %2 m from it, and no point has that name.</source>
        <translation>没有成果，但成果 %1 距它 %2 m，而没有点叫这个点名。</translation>
    </message>
    <message>
        <source>Then %1 is not surveyed.</source>
        <translation>改正后 %1 未测量。</translation>
    </message>
</context>
<context>
    <name>NeighbourProblems</name>
    <message>
        <source>It is %1 higher than its neighbours.</source>
        <translation>它比相邻的成果高 %1。</translation>
    </message>
    <message>
        <source>It is %1 lower than its neighbours.</source>
        <translation>它比相邻的成果低 %1。</translation>
    </message>
</context>
<context>
    <name>NewProjectCommand</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Failed to create project file!</source>
        <translation>创建工程文件失败！</translation>
    </message>
    <message>
        <source>information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>project path exist, override?</source>
        <translation>工程路径已存在，是否覆盖？</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>无法创建文件夹“%1”。</translation>
    </message>
</context>
<context>
    <name>NorthArrow</name>
    <message>
        <source>N</source>
        <translation>北</translation>
    </message>
</context>
<context>
    <name>OffsetPlot</name>
    <message>
        <source>Offsets from the design</source>
        <translation>与设计点的偏差</translation>
    </message>
    <message>
        <source>None of the results has a design position.</source>
        <translation>所有成果都没有设计位置。</translation>
    </message>
    <message>
        <source>East (m)</source>
        <translation>东 (m)</translation>
    </message>
    <message>
        <source>North (m)</source>
        <translation>北 (m)</translation>
    </message>
    <message>
        <source>Results: %1, without a design position: %2.</source>
        <translation>成果：%1，无设计位置：%2。</translation>
    </message>
    <message>
        <source>limit: %1 m</source>
        <translation>限差：%1 m</translation>
    </message>
    <message>
        <source>95 % ellipse: %1 m by %2 m</source>
        <translation>95 % 椭圆：%1 m × %2 m</translation>
    </message>
    <message>
        <source>The ellipse holds 95 % of normally spread offsets: its middle is their mean, its half axes are the roots of 5.991 times the eigenvalues of their covariance matrix (with n - 1); 5.991 is the 95 % value of chi-square with two degrees of freedom. The longer axis points to %1%2.</source>
        <translation>正态分布的偏差有 95 % 落在椭圆内：其中心为平均值，半轴为协方差矩阵（除以 n - 1）特征值乘以 5.991 的平方根；5.991 是自由度为 2 的卡方分布的 95 % 分位数。长轴方向为 %1%2。</translation>
    </message>
</context>
<context>
    <name>OpenProjectCommand</name>
    <message>
        <source>Open Project</source>
        <translation>打开工程</translation>
    </message>
</context>
<context>
    <name>OverlayTexts</name>
    <message>
        <source>Large images without overviews, which take long to show as a whole: %1.</source>
        <translation>下列大图像没有金字塔，整幅显示会很慢：%1。</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>%1 x %2 %3 a pixel</source>
        <translation>每像素 %1 x %2 %3</translation>
    </message>
    <message>
        <source> (no data: %1)</source>
        <translation>（无数据值：%1）</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>outside the coordinate system of the project</source>
        <translation>在工程坐标系的范围之外</translation>
    </message>
    <message>
        <source>information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Choose Overlay Images</source>
        <translation>选择叠加图像</translation>
    </message>
    <message>
        <source>georeferenced images</source>
        <translation>带地理坐标的图像</translation>
    </message>
    <message>
        <source>all files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>&amp;Build Overviews</source>
        <translation>建立金字塔(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Find Its File...</source>
        <translation>重新指定文件(&amp;F)...</translation>
    </message>
    <message>
        <source>An overlay image is shown with the survey of a project: open or create a project first.</source>
        <translation>叠加图像与工程的测量数据一起显示：请先打开或新建工程。</translation>
    </message>
    <message>
        <source>Overlay images added: %1.</source>
        <translation>已添加叠加图像：%1 幅。</translation>
    </message>
    <message>
        <source>Beside the survey: a double click in the window &quot;Layers&quot; goes there.</source>
        <translation>图像不在测区内：在“图层”窗口中双击即可前往。</translation>
    </message>
    <message>
        <source>Images that cannot be shown: %1.</source>
        <translation>无法显示的图像：%1 幅。</translation>
    </message>
    <message>
        <source>Overlay image: %1</source>
        <translation>叠加图像：%1</translation>
    </message>
    <message>
        <source>Overlay images with a fault: %1. The window &quot;Layers&quot; marks them.</source>
        <translation>有问题的叠加图像：%1 幅，已在“图层”窗口中标出。</translation>
    </message>
    <message>
        <source>Build the overviews now, in files beside the images? You can go on working meanwhile.</source>
        <translation>现在建立金字塔吗？金字塔文件写在图像旁边，期间可以继续工作。</translation>
    </message>
    <message>
        <source>They cannot be built, since the folder cannot be written.</source>
        <translation>文件夹不可写，无法建立金字塔。</translation>
    </message>
    <message>
        <source>The overviews were not built.</source>
        <translation>金字塔未建立。</translation>
    </message>
    <message>
        <source>The overviews of &quot;%1&quot; are built.</source>
        <translation>“%1”的金字塔已建立。</translation>
    </message>
    <message>
        <source>Cancelled: &quot;%1&quot; stays without overviews.</source>
        <translation>已取消：“%1”仍没有金字塔。</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 像素</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>坐标系统</translation>
    </message>
    <message>
        <source>none; taken for that of the project</source>
        <translation>无；按工程坐标系处理</translation>
    </message>
    <message>
        <source>Place in the project</source>
        <translation>在工程中的位置</translation>
    </message>
    <message>
        <source>Bands</source>
        <translation>波段</translation>
    </message>
    <message>
        <source>Overviews</source>
        <translation>金字塔</translation>
    </message>
</context>
<context>
    <name>PeriodPanel</name>
    <message>
        <source>Period (%1)</source>
        <translation>时段（%1）</translation>
    </message>
    <message>
        <source>&amp;All results</source>
        <translation>全部成果(&amp;A)</translation>
    </message>
    <message>
        <source>This &amp;day:</source>
        <translation>某一天(&amp;D)：</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>从(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;to:</source>
        <translation>到(&amp;T)：</translation>
    </message>
    <message>
        <source>The period ends before it begins.</source>
        <translation>时段的结束早于开始。</translation>
    </message>
</context>
<context>
    <name>PlacePick</name>
    <message>
        <source>Places are picked on the map of an open project.</source>
        <translation>请先打开工程，再在它的地图上选取位置。</translation>
    </message>
    <message>
        <source>Click a place on the map, free or on a point. Esc or a right click cancels.</source>
        <translation>请在地图上单击一处；单击点则取该点。按 Esc 或单击右键取消。</translation>
    </message>
    <message>
        <source>Click place %1 of %2 on the map, free or on a point. Esc or a right click cancels.</source>
        <translation>请在地图上单击第 %1 处（共 %2 处）；单击点则取该点。按 Esc 或单击右键取消。</translation>
    </message>
</context>
<context>
    <name>PlotKinds</name>
    <message>
        <source>Offsets from the design</source>
        <translation>与设计点的偏差</translation>
    </message>
    <message>
        <source>Horizontal distances</source>
        <translation>水平距离</translation>
    </message>
    <message>
        <source>Height differences along the lines</source>
        <translation>沿测线的高差</translation>
    </message>
    <message>
        <source>Points measured twice, by base</source>
        <translation>按基准站的重复测量点</translation>
    </message>
    <message>
        <source>Accuracy and satellites over the day</source>
        <translation>一天内的精度与卫星数</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
</context>
<context>
    <name>PlotLegend</name>
    <message>
        <source>and %1 more</source>
        <translation>以及其他 %1 个</translation>
    </message>
</context>
<context>
    <name>PointCorrection</name>
    <message>
        <source>A comma cannot stand here: it separates the fields of CSV files. Write a semicolon.</source>
        <translation>此处不能有英文逗号：它是 CSV 文件的字段分隔符。请改用分号或中文逗号。</translation>
    </message>
    <message>
        <source>A line break, a tab or another control character cannot stand here.</source>
        <translation>此处不能有换行、制表符或其他控制字符。</translation>
    </message>
    <message>
        <source>A line or point number has no comma and no quote.</source>
        <translation>线号和点号不能含有逗号和引号。</translation>
    </message>
    <message>
        <source>The line number is missing.</source>
        <translation>缺少线号。</translation>
    </message>
    <message>
        <source>The point number is missing.</source>
        <translation>缺少点号。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; begins as the number of a check point, which is a C and eight characters: files hold no more of it than &quot;%2&quot;.</source>
        <translation>“%1”以检查点点号的形式开头；检查点点号是 C 加八个字符，文件中只能保存“%2”。</translation>
    </message>
    <message>
        <source>The antenna height is a number from -%1 to %1 metres.</source>
        <translation>天线高应为 -%1 到 %1 米之间的数。</translation>
    </message>
    <message>
        <source>This is no number.</source>
        <translation>这不是数。</translation>
    </message>
</context>
<context>
    <name>PointRenaming</name>
    <message>
        <source>There is no result %1 any more: nothing was renamed.</source>
        <translation>成果 %1 已不存在：没有改名。</translation>
    </message>
    <message>
        <source>Another result has the name %1: nothing was renamed. Give that one its right name first, or both at once.</source>
        <translation>另一个成果已有点名 %1：没有改名。请先改正那一个的点名，或者两个一起改。</translation>
    </message>
</context>
<context>
    <name>PointRestore</name>
    <message>
        <source>Points restored: %1.</source>
        <translation>已恢复的点：%1。</translation>
    </message>
    <message>
        <source>In place of another state: %1.</source>
        <translation>其中替换了现有状态：%1。</translation>
    </message>
    <message>
        <source>Already so: %1.</source>
        <translation>本来就是如此：%1。</translation>
    </message>
    <message>
        <source>Not restored, because they were new then or are gone now: %1.</source>
        <translation>未恢复（当时为新增或现已不存在）：%1。</translation>
    </message>
    <message>
        <source>Parameters cannot be restored here: %1.</source>
        <translation>参数不能在此恢复：%1。</translation>
    </message>
    <message>
        <source>Accepted problems cannot be restored here: %1.</source>
        <translation>已接受的问题不能在此恢复：%1。</translation>
    </message>
    <message>
        <source>Taken away, since their measurements are back: %1.</source>
        <translation>因其各次测量已恢复而移除：%1。</translation>
    </message>
</context>
<context>
    <name>PointTableWindow</name>
    <message>
        <source>export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy with Headers</source>
        <translation>连同表头复制</translation>
    </message>
    <message>
        <source>Filter by This Value</source>
        <translation>按此值筛选</translation>
    </message>
    <message>
        <source>Show on the Map</source>
        <translation>在地图上显示</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Copied to Clipboard.</source>
        <translation>已复制到剪贴板。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Export Failed!</source>
        <translation>导出失败！</translation>
    </message>
    <message>
        <source>No project is open.</source>
        <translation>没有打开的工程。</translation>
    </message>
    <message>
        <source>No point passes the filters. &lt;a href=&quot;#&quot;&gt;Clear all filters&lt;/a&gt;</source>
        <translation>没有符合筛选条件的点。&lt;a href=&quot;#&quot;&gt;清除所有筛选&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Filter of &quot;%1&quot;: %2</source>
        <translation>“%1”的筛选条件：%2</translation>
    </message>
    <message>
        <source>The filters hide the selected point %1. &lt;a href=&quot;#&quot;&gt;Clear all filters&lt;/a&gt;</source>
        <translation>选中的点 %1 被筛选条件隐藏。&lt;a href=&quot;#&quot;&gt;清除所有筛选&lt;/a&gt;</translation>
    </message>
    <message>
        <source>History of This Point</source>
        <translation>此点的历史</translation>
    </message>
    <message>
        <source>Points: %1</source>
        <translation>点数：%1</translation>
    </message>
    <message>
        <source>Points: %1 of %2</source>
        <translation>点数：%1 / %2</translation>
    </message>
    <message>
        <source>Only %1. &lt;a href=&quot;#&quot;&gt;Clear all filters&lt;/a&gt;</source>
        <translation>只显示%1。&lt;a href=&quot;#&quot;&gt;清除所有筛选&lt;/a&gt;</translation>
    </message>
</context>
<context>
    <name>PointVisit</name>
    <message>
        <source>Point %1 is not in the project now.</source>
        <translation>工程中现在没有点 %1。</translation>
    </message>
</context>
<context>
    <name>ProblemActions</name>
    <message>
        <source>&amp;Accept...</source>
        <translation>接受(&amp;A)...</translation>
    </message>
    <message>
        <source>Say why the selected problems may be so; they leave the list</source>
        <translation>说明选中的问题为什么可以这样；它们离开列表</translation>
    </message>
    <message>
        <source>Open A&amp;gain</source>
        <translation>重新打开(&amp;G)</translation>
    </message>
    <message>
        <source>Put the selected problems back into the list of the open ones</source>
        <translation>把选中的问题放回未处理的列表</translation>
    </message>
    <message>
        <source>Ca&amp;rry Out Proposal</source>
        <translation>执行建议(&amp;R)</translation>
    </message>
    <message>
        <source>Give the selected results the names that are proposed; it can be undone</source>
        <translation>把选中的成果改为所建议的点名；可以撤销</translation>
    </message>
    <message>
        <source>Measure Agai&amp;n...</source>
        <translation>重新测量(&amp;N)...</translation>
    </message>
    <message>
        <source>Write the design points of the selected problems for the crew</source>
        <translation>为测量组写出选中问题的设计点</translation>
    </message>
    <message>
        <source>&amp;List for the Crew...</source>
        <translation>测量组清单(&amp;L)...</translation>
    </message>
    <message>
        <source>Write the points of all errors and warnings that are shown as CSV or KML: what is not surveyed, and what must be measured again</source>
        <translation>把所显示的全部错误和警告的点写成 CSV 或 KML：尚未测量的和必须重新测量的</translation>
    </message>
    <message>
        <source>&amp;Save as CSV...</source>
        <translation>另存为 CSV(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy with H&amp;eaders</source>
        <translation>连同标题复制(&amp;E)</translation>
    </message>
    <message>
        <source>Accepted by %1 on %2: %3</source>
        <translation>%1 于 %2 接受：%3</translation>
    </message>
    <message>
        <source>Problems accepted: %1</source>
        <translation>已接受的问题：%1</translation>
    </message>
    <message>
        <source>Problems open again: %1</source>
        <translation>重新打开的问题：%1</translation>
    </message>
    <message>
        <source>Result %1 is now %2. Ctrl+Z takes it back.</source>
        <translation>成果 %1 现在是 %2。按 Ctrl+Z 撤销。</translation>
    </message>
    <message>
        <source>Results with new names: %1. Ctrl+Z takes it back.</source>
        <translation>改名的成果：%1。按 Ctrl+Z 撤销。</translation>
    </message>
    <message>
        <source>Carry Out Proposal</source>
        <translation>执行建议</translation>
    </message>
    <message>
        <source>Points for the Crew</source>
        <translation>测量组的点</translation>
    </message>
    <message>
        <source>No error and no warning that is shown has a point.</source>
        <translation>所显示的错误和警告都没有对应的点。</translation>
    </message>
    <message>
        <source>Save Problems</source>
        <translation>保存问题</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>行：%1</translation>
    </message>
    <message>
        <source>Resol&amp;ve Repeats...</source>
        <translation>重复测量取舍(&amp;V)...</translation>
    </message>
    <message>
        <source>Choose which measurement of the selected points stays</source>
        <translation>选择所选各点保留哪一次测量</translation>
    </message>
    <message>
        <source>Write the rows that are shown; numbers stand without their units</source>
        <translation>写出所显示的行；数值不带单位</translation>
    </message>
</context>
<context>
    <name>ProblemColumns</name>
    <message>
        <source>Note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>严重程度</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线号</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点号</translation>
    </message>
    <message>
        <source>What</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>限差</translation>
    </message>
    <message>
        <source>Rover</source>
        <translation>流动站</translation>
    </message>
    <message>
        <source>Surveyor</source>
        <translation>测量员</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日期</translation>
    </message>
</context>
<context>
    <name>ProblemFinders</name>
    <message>
        <source>Find Problems</source>
        <translation>查找问题</translation>
    </message>
</context>
<context>
    <name>ProblemKindBar</name>
    <message>
        <source>Kinds of problems</source>
        <translation>问题的类型</translation>
    </message>
    <message>
        <source>All open problems</source>
        <translation>全部未处理</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>已接受</translation>
    </message>
</context>
<context>
    <name>ProblemKinds</name>
    <message>
        <source>Not surveyed</source>
        <translation>未测量</translation>
    </message>
    <message>
        <source>Resurvey out of range</source>
        <translation>复测超限</translation>
    </message>
    <message>
        <source>Resurvey without its point</source>
        <translation>复测无对应点</translation>
    </message>
    <message>
        <source>Measured again</source>
        <translation>重复测量</translation>
    </message>
    <message>
        <source>Spacing in the line</source>
        <translation>测线点距</translation>
    </message>
    <message>
        <source>Gap in the numbers</source>
        <translation>点号缺口</translation>
    </message>
    <message>
        <source>Azimuth spike</source>
        <translation>方位角突变</translation>
    </message>
    <message>
        <source>Reversed order</source>
        <translation>顺序颠倒</translation>
    </message>
    <message>
        <source>Points in one place</source>
        <translation>位置重合</translation>
    </message>
    <message>
        <source>Interleaved lines</source>
        <translation>测线交错</translation>
    </message>
    <message>
        <source>Height jump</source>
        <translation>高程突变</translation>
    </message>
    <message>
        <source>Wrong name</source>
        <translation>点名错误</translation>
    </message>
    <message>
        <source>Exchanged names</source>
        <translation>点名互换</translation>
    </message>
    <message>
        <source>Foreign result on an empty point</source>
        <translation>空点上有别的成果</translation>
    </message>
    <message>
        <source>Height off its neighbours</source>
        <translation>高程与相邻点不符</translation>
    </message>
    <message>
        <source>Too far from the design</source>
        <translation>偏离设计位置</translation>
    </message>
    <message>
        <source>Height off the design</source>
        <translation>偏离设计高程</translation>
    </message>
    <message>
        <source>Base station too far</source>
        <translation>基准站过远</translation>
    </message>
    <message>
        <source>Antenna too high</source>
        <translation>天线过高</translation>
    </message>
    <message>
        <source>Antenna too low</source>
        <translation>天线过低</translation>
    </message>
    <message>
        <source>Too few satellites</source>
        <translation>卫星数不足</translation>
    </message>
    <message>
        <source>Too far beside its line</source>
        <translation>横向偏差超限</translation>
    </message>
    <message>
        <source>Too far along its line</source>
        <translation>纵向偏差超限</translation>
    </message>
    <message>
        <source>Without design position</source>
        <translation>没有设计位置</translation>
    </message>
    <message>
        <source>Without position</source>
        <translation>没有坐标</translation>
    </message>
    <message>
        <source>Solution type</source>
        <translation>解类型</translation>
    </message>
    <message>
        <source>Old corrections</source>
        <translation>差分改正过旧</translation>
    </message>
    <message>
        <source>Too few epochs</source>
        <translation>历元数不足</translation>
    </message>
    <message>
        <source>Occupied too shortly</source>
        <translation>观测时间过短</translation>
    </message>
    <message>
        <source>Too few check shots</source>
        <translation>检核点过少</translation>
    </message>
    <message>
        <source>Base coordinates wrong</source>
        <translation>基准站坐标有误</translation>
    </message>
    <message>
        <source>Pole height wrong</source>
        <translation>杆高有误</translation>
    </message>
    <message>
        <source>Survey off the design</source>
        <translation>测量整体偏离设计</translation>
    </message>
    <message>
        <source>Repeat out of range</source>
        <translation>重复测量超限</translation>
    </message>
    <message>
        <source>Differences of a base and a day</source>
        <translation>基准站每日的差值</translation>
    </message>
    <message>
        <source>Problems of single points that follow from it: %1.</source>
        <translation>由此引起的单点问题：%1 个。</translation>
    </message>
</context>
<context>
    <name>ProblemLimits</name>
    <message>
        <source>Solution type, at least</source>
        <translation>解类型，至少</translation>
    </message>
    <message>
        <source>From the best: fixed, float, differential, single.</source>
        <translation>由好到差：固定解、浮点解、差分解、单点解。</translation>
    </message>
    <message>
        <source>Age of corrections, max.</source>
        <translation>差分龄期，最大</translation>
    </message>
    <message>
        <source>Epochs, min.</source>
        <translation>历元数，最少</translation>
    </message>
    <message>
        <source>Occupation, min.</source>
        <translation>观测时长，最短</translation>
    </message>
    <message>
        <source>From start time to end time. A result without them has none.</source>
        <translation>从开始时间到结束时间。没有这两个时间的成果没有观测时长。</translation>
    </message>
    <message>
        <source>RMS, max.</source>
        <translation>RMS，最大</translation>
    </message>
    <message>
        <source>Height from that of its neighbours, max.</source>
        <translation>与相邻成果的高差，最大</translation>
    </message>
    <message>
        <source>The height of a result is compared with the median of the nearest results.</source>
        <translation>成果的高程与最近几个成果高程的中位数比较。</translation>
    </message>
    <message>
        <source>Nearer to another design point, min.</source>
        <translation>离另一设计点更近，至少</translation>
    </message>
    <message>
        <source>A result that is nearer to another design point than to its own by more than this has a wrong name.</source>
        <translation>成果离另一设计点比离自己的设计点近得超过此值时，点名错误。</translation>
    </message>
    <message>
        <source>Distance from that point, max.</source>
        <translation>距该点的距离，最大</translation>
    </message>
    <message>
        <source>A stake that was moved aside from an obstacle is farther from all other points than this.</source>
        <translation>因障碍物移动的桩位离所有其他点都比这更远。</translation>
    </message>
    <message>
        <source>Spacing off the line&apos;s median, max.</source>
        <translation>点距偏离测线中位数，最大</translation>
    </message>
    <message>
        <source>Missing numbers in a row, max.</source>
        <translation>连续缺少的点号，最多</translation>
    </message>
    <message>
        <source>Longer gaps, and gaps beside each other in neighbouring lines, are taken for planned.</source>
        <translation>更长的缺口，以及相邻测线上并排的缺口，视为有意留出。</translation>
    </message>
    <message>
        <source>Azimuth spike, max.</source>
        <translation>方位角突变，最大</translation>
    </message>
    <message>
        <source>A bend of the line is no spike: a spike leads away from the line and back.</source>
        <translation>测线转弯不是突变：突变是离开测线又回来。</translation>
    </message>
    <message>
        <source>Points in reversed order, min.</source>
        <translation>顺序颠倒的点，至少</translation>
    </message>
    <message>
        <source>Coincident points, max. distance</source>
        <translation>重合点，最大距离</translation>
    </message>
    <message>
        <source>Receivers and sources may be in the same place.</source>
        <translation>接收点与激发点可以在同一位置。</translation>
    </message>
    <message>
        <source>Points among those of another line, min.</source>
        <translation>夹在另一测线点间的点，至少</translation>
    </message>
    <message>
        <source>Height jump in the line, max.</source>
        <translation>测线高程突变，最大</translation>
    </message>
    <message>
        <source>Above or below all neighbours in the line; a slope is no jump.</source>
        <translation>高于或低于测线上的所有相邻点；斜坡不是突变。</translation>
    </message>
    <message>
        <source>Stakes moved aside, max.</source>
        <translation>桩位移动，最大</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>点名</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>测线</translation>
    </message>
    <message>
        <source>Check shots of a crew and day</source>
        <translation>每组每天的检核点比例</translation>
    </message>
    <message>
        <source>Check shots, min.</source>
        <translation>检核点最少个数</translation>
    </message>
    <message>
        <source>Shift of a base on the plane, max.</source>
        <translation>基准站平面偏移上限</translation>
    </message>
    <message>
        <source>What all results of a base and a day are off by the same is a wrong base.</source>
        <translation>同一基准站同一天的全部成果偏移相同，即基准站有误。</translation>
    </message>
    <message>
        <source>Shift of a base or a pole in height, max.</source>
        <translation>基准站或杆高的高程偏移上限</translation>
    </message>
    <message>
        <source>What all results of a base or a rover and a day are off in height by the same is a wrong base or pole height.</source>
        <translation>同一基准站或流动站同一天的全部成果高程偏移相同，即基准站或杆高有误。</translation>
    </message>
    <message>
        <source>Results that show a shift, min.</source>
        <translation>判定偏移所需的最少成果数</translation>
    </message>
    <message>
        <source>Check shots</source>
        <translation>检核点</translation>
    </message>
    <message>
        <source>For results that have no design points to compare them with. At 0 none counts as moved.</source>
        <translation>用于没有设计点可比较的成果。为 0 时不认为有桩位移动过。</translation>
    </message>
    <message>
        <source>How many of the points of a day are to be measured again. Not looked at when the next one is 0 as well.</source>
        <translation>当天测量的点中需要复测的比例。下一项也为 0 时不检查。</translation>
    </message>
    <message>
        <source>Of a crew and a day, even when the share above is less. Not looked at when both are 0.</source>
        <translation>每组每天，即使上面的比例算出的更少。两项都为 0 时不检查。</translation>
    </message>
    <message>
        <source>List of mean differences</source>
        <translation>平均差值列表</translation>
    </message>
    <message>
        <source>What the results of a base and a day differ on average from the design, and from the first measurement of their points.</source>
        <translation>每个基准站每天的成果与设计的平均差值，以及与同一点首次测量的平均差值。</translation>
    </message>
    <message>
        <source>Each base and day</source>
        <translation>每个基准站每天</translation>
    </message>
    <message>
        <source>What fewer results of a base or a rover and a day show is no shift.</source>
        <translation>某天一个基准站或流动站的成果少于此数时，不判定为偏移。</translation>
    </message>
</context>
<context>
    <name>ProblemLimitsPage</name>
    <message>
        <source>Off</source>
        <translation>不检查</translation>
    </message>
    <message>
        <source>Find Problems looks at these limits. 0 switches one off, where its description does not say otherwise.</source>
        <translation>“查找问题”使用这些限差。0 表示不检查，说明中另有规定的除外。</translation>
    </message>
</context>
<context>
    <name>ProblemWindow</name>
    <message>
        <source>Problems: %1</source>
        <translation>问题：%1</translation>
    </message>
    <message>
        <source>Problems: %1 of %2</source>
        <translation>问题：%1 / %2</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Points or limits have changed since these problems were found. &lt;a href=&quot;find&quot;&gt;Find them again&lt;/a&gt; (Ctrl+F9)</source>
        <translation>这些问题查出之后，点或限差已有改动。&lt;a href=&quot;find&quot;&gt;重新查找&lt;/a&gt;（Ctrl+F9）</translation>
    </message>
    <message>
        <source>&amp;Find Problems</source>
        <translation>查找问题(&amp;F)</translation>
    </message>
    <message>
        <source>Run everything that is on and list what is wrong (Ctrl+F9)</source>
        <translation>运行所有已启用的检查，列出一切问题（Ctrl+F9）</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Shows the problems with this line, point, rover, surveyor or kind. A line and a point together: 1001/10015001</source>
        <translation>显示与此测线、点、流动站、测量员或类型有关的问题。测线和点一起：1001/10015001</translation>
    </message>
    <message>
        <source>Search the problems</source>
        <translation>搜索问题</translation>
    </message>
    <message>
        <source>Problems: %1 (errors: %2, warnings: %3, notes: %4). Accepted: %5</source>
        <translation>问题：%1（错误 %2，警告 %3，提示 %4）。已接受：%5</translation>
    </message>
    <message>
        <source>No project is open.</source>
        <translation>没有打开的工程。</translation>
    </message>
    <message>
        <source>What must the crew do tomorrow? &lt;a href=&quot;find&quot;&gt;Find the problems&lt;/a&gt; of the design and of all results (Ctrl+F9).</source>
        <translation>测量组明天要做什么？&lt;a href=&quot;find&quot;&gt;查找&lt;/a&gt;设计和全部成果的问题（Ctrl+F9）。</translation>
    </message>
    <message>
        <source>No problem passes the filters. &lt;a href=&quot;#&quot;&gt;Clear all filters&lt;/a&gt;</source>
        <translation>没有问题符合筛选条件。&lt;a href=&quot;#&quot;&gt;清除所有筛选&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Filter of &quot;%1&quot;: %2</source>
        <translation>“%1”的筛选条件：%2</translation>
    </message>
    <message>
        <source>&amp;Filter by This Value</source>
        <translation>按此值筛选(&amp;F)</translation>
    </message>
    <message>
        <source>Show on the &amp;Map</source>
        <translation>在地图上显示(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;History of This Point</source>
        <translation>此点的历史(&amp;H)</translation>
    </message>
    <message>
        <source>There is nothing to look at yet: import a design or results.</source>
        <translation>还没有可检查的内容：请导入设计或成果。</translation>
    </message>
    <message>
        <source>No open problem was found. Accepted: %1. Results: %2, design points: %3</source>
        <translation>没有未处理的问题。已接受：%1。成果：%2，设计点：%3</translation>
    </message>
</context>
<context>
    <name>ProgressPlot</name>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>No design point was staked at a known time.</source>
        <translation>没有在已知时间放样的设计点。</translation>
    </message>
    <message>
        <source>The pace is the mean of the points staked on each of the last %1 days on which any were. The last day expected is counted with as many days off between them as these had.</source>
        <translation>进度速率是最近 %1 个有放样的日子每天放样点数的平均值。预计完成日按这些日子之间同样比例的休息日推算。</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Points a day</source>
        <translation>每天点数</translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1，%2：%3</translation>
    </message>
    <message>
        <source>Points done</source>
        <translation>完成点数</translation>
    </message>
    <message>
        <source>design: %1</source>
        <translation>设计：%1</translation>
    </message>
    <message>
        <source>done: %1</source>
        <translation>已完成：%1</translation>
    </message>
    <message>
        <source>Done: %1 of %2, left: %3.</source>
        <translation>已完成：%1 / %2，剩余：%3。</translation>
    </message>
    <message>
        <source>Without a time: %1.</source>
        <translation>无时间：%1。</translation>
    </message>
    <message>
        <source>At the present pace of %1 points a day, days of work still needed: %2.</source>
        <translation>按目前每天 %1 点的速率，还需工作天数：%2。</translation>
    </message>
    <message>
        <source>Last day expected: %1.</source>
        <translation>预计完成日：%1。</translation>
    </message>
    <message>
        <source>Done: %1.</source>
        <translation>已完成：%1。</translation>
    </message>
    <message>
        <source>Present pace: %1 points a day.</source>
        <translation>目前每天 %1 点。</translation>
    </message>
    <message>
        <source>days still needed: %1</source>
        <translation>还需天数：%1</translation>
    </message>
</context>
<context>
    <name>ProjectPlace</name>
    <message>
        <source>Please enter a project name.</source>
        <translation>请输入工程名称。</translation>
    </message>
    <message>
        <source>A project name cannot contain &quot;%1&quot;.</source>
        <translation>工程名称不能包含“%1”。</translation>
    </message>
    <message>
        <source>A project name cannot contain control characters.</source>
        <translation>工程名称不能包含控制字符。</translation>
    </message>
    <message>
        <source>A project name cannot begin or end with a blank.</source>
        <translation>工程名称首尾不能有空格。</translation>
    </message>
    <message>
        <source>Some systems cannot have files named &quot;%1&quot;.</source>
        <translation>某些系统不允许名为“%1”的文件。</translation>
    </message>
    <message>
        <source>The project name is too long.</source>
        <translation>工程名称过长。</translation>
    </message>
    <message>
        <source>Please choose the folder of the project.</source>
        <translation>请选择工程所在文件夹。</translation>
    </message>
    <message>
        <source>Please enter the whole path of the folder.</source>
        <translation>请输入文件夹的完整路径。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>文件夹“%1”不存在。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder.</source>
        <translation>“%1”不是文件夹。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be written.</source>
        <translation>文件夹“%1”不可写。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no project file: its name would end in &quot;.%2&quot;.</source>
        <translation>“%1”不是工程文件：工程文件名应以“.%2”结尾。</translation>
    </message>
    <message>
        <source>Open &quot;%1&quot; instead.</source>
        <translation>请打开“%1”。</translation>
    </message>
    <message>
        <source>Please enter a file name.</source>
        <translation>请输入文件名。</translation>
    </message>
    <message>
        <source>A file name cannot contain &quot;%1&quot;.</source>
        <translation>文件名不能含有“%1”。</translation>
    </message>
    <message>
        <source>A file name cannot contain control characters.</source>
        <translation>文件名不能含有控制字符。</translation>
    </message>
    <message>
        <source>A file name cannot begin or end with a blank or a dot.</source>
        <translation>文件名不能以空格或点开头或结尾。</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>文件名太长。</translation>
    </message>
    <message>
        <source>Please choose a folder.</source>
        <translation>请选择一个文件夹。</translation>
    </message>
</context>
<context>
    <name>ProjectSession</name>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>failed to open project!</source>
        <translation>打开工程失败！</translation>
    </message>
    <message>
        <source>information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>close current project?</source>
        <translation>关闭当前工程？</translation>
    </message>
    <message>
        <source>The project could not be saved. Close it all the same and lose the changes?</source>
        <translation>工程未能保存。仍要关闭并放弃更改吗？</translation>
    </message>
    <message>
        <source>save project?</source>
        <translation>是否保存工程？</translation>
    </message>
    <message>
        <source>Save project failed!</source>
        <translation>工程保存失败！</translation>
    </message>
    <message>
        <source>&quot;Project &gt; Save a Copy As&quot; saves it, with all changes, in another folder.</source>
        <translation>可用“工程 &gt; 另存副本”把工程连同全部更改保存到其他文件夹。</translation>
    </message>
    <message>
        <source>success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Save project success!</source>
        <translation>工程保存成功！</translation>
    </message>
</context>
<context>
    <name>ProjectStore</name>
    <message>
        <source>The parameter file &quot;%1&quot; cannot be read: %2</source>
        <translation>无法读取参数文件“%1”：%2</translation>
    </message>
    <message>
        <source>The parameter file &quot;%1&quot; cannot be written.</source>
        <translation>无法写入参数文件“%1”。</translation>
    </message>
    <message>
        <source>The project database &quot;%1&quot; cannot be read: %2.</source>
        <translation>无法读取工程数据库“%1”：%2。</translation>
    </message>
    <message>
        <source>The project database &quot;%1&quot; cannot be written: %2. It is as it was before.</source>
        <translation>无法写入工程数据库“%1”：%2。数据库保持原样。</translation>
    </message>
    <message>
        <source>Saving this project was interrupted. It is as it was last saved.</source>
        <translation>此工程的保存曾被中断，现为上次保存时的内容。</translation>
    </message>
    <message>
        <source>An interrupted save of &quot;%1&quot; cannot be undone: %2.</source>
        <translation>无法恢复“%1”中断前的内容：%2。</translation>
    </message>
    <message>
        <source>Saving was interrupted; the project as it was before stands in &quot;%1&quot;, which cannot be put in its place: %2.</source>
        <translation>保存被中断；保存前的工程在“%1”中，但无法将其放回原处：%2。</translation>
    </message>
    <message>
        <source>another program is using it</source>
        <translation>其他程序正在使用该文件</translation>
    </message>
    <message>
        <source>the file is damaged</source>
        <translation>文件已损坏</translation>
    </message>
    <message>
        <source>the file is no project database</source>
        <translation>该文件不是工程数据库</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>file or folder cannot be written</source>
        <translation>文件或文件夹不可写</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>无法打开文件</translation>
    </message>
    <message>
        <source>a table is missing</source>
        <translation>缺少数据表</translation>
    </message>
    <message>
        <source>The project file &quot;%1&quot; cannot be written.</source>
        <translation>无法写入工程文件“%1”。</translation>
    </message>
    <message>
        <source>The project is open in another program.</source>
        <translation>该工程已在另一个程序中打开。</translation>
    </message>
    <message>
        <source>The project is open in another program (%1, process %2 on %3).</source>
        <translation>该工程已在另一个程序中打开（%1，进程 %2，主机 %3）。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist.</source>
        <translation>文件夹“%1”不存在。</translation>
    </message>
    <message>
        <source>The folder of this project cannot be written: changes cannot be saved.</source>
        <translation>该工程的文件夹不可写：更改无法保存。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2.</source>
        <translation>文件“%1”无法写入：%2。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2.</source>
        <translation>文件“%1”无法读取：%2。</translation>
    </message>
    <message>
        <source>If it is not, remove the file &quot;%1&quot; and try again.</source>
        <translation>如果并未打开，请删除文件“%1”后重试。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written, perhaps because the disk is full: changes cannot be saved as long as that is so.</source>
        <translation>文件“%1”无法写入，可能是磁盘已满：在此期间无法保存更改。</translation>
    </message>
    <message>
        <source>Another program has changed the project since it was opened here without a lock.</source>
        <translation>该工程在此处未加锁打开之后，已被另一个程序更改。</translation>
    </message>
    <message>
        <source>The project file &quot;%1&quot; cannot be read (%2): what it says about the project is neither shown nor saved.</source>
        <translation>无法读取工程文件“%1”（%2）：其中的工程信息既不显示也不保存。</translation>
    </message>
    <message>
        <source>The history of this project is of a newer version of the program. It is kept, but not shown, and what you change is not added to it.</source>
        <translation>本工程的历史记录由本程序的较新版本写成。历史记录予以保留但不显示，您所作的更改也不会记入其中。</translation>
    </message>
    <message>
        <source>Actions in the history of this project that a newer version of the program has written: %1. They are kept, but not shown.</source>
        <translation>本工程的历史记录中由本程序较新版本写入的操作：%1 项。它们予以保留但不显示。</translation>
    </message>
    <message>
        <source>The history of this project cannot be read: %1.</source>
        <translation>无法读取本工程的历史记录：%1。</translation>
    </message>
    <message>
        <source>The history of this project has lost a table or a column. It is kept, but not shown, and what you change is not added to it.</source>
        <translation>此工程的历史记录缺少一个表或一个字段。它被保留，但不显示，您所做的更改也不会添加到其中。</translation>
    </message>
    <message>
        <source>Actions in the history of this project whose points are damaged and are not all shown: %1.</source>
        <translation>此工程历史记录中有 %1 项操作的点数据已损坏，未全部显示。</translation>
    </message>
    <message>
        <source>The points are saved. The history of this project does not take what you have changed: %1.</source>
        <translation>点已保存。此工程的历史记录未能写入您所做的更改：%1。</translation>
    </message>
    <message>
        <source>Accepted problems of this project that a newer version of the program has written: %1. They are kept, but not shown as accepted.</source>
        <translation>本工程中由较新版本的程序写入的已接受问题：%1。它们会保留，但不显示为已接受。</translation>
    </message>
    <message>
        <source>The accepted problems of this project are of another version of the program. They are kept, but not shown, and what you accept is not added to them.</source>
        <translation>本工程的已接受问题由其他版本的程序写入。它们会保留，但不显示，您接受的问题也不会加入其中。</translation>
    </message>
    <message>
        <source>The accepted problems of this project cannot be read: %1.</source>
        <translation>无法读取本工程的已接受问题：%1。</translation>
    </message>
    <message>
        <source>The points are saved, but not which problems you have accepted: %1.</source>
        <translation>各点已保存，但您接受的问题未能保存：%1。</translation>
    </message>
</context>
<context>
    <name>PropertyGrid</name>
    <message>
        <source>Enter a whole number from %1 to %2.</source>
        <translation>请输入 %1 到 %2 之间的整数。</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2.</source>
        <translation>请输入 %1 到 %2 之间的数。</translation>
    </message>
    <message>
        <source>Enter a whole number of at least %1.</source>
        <translation>请输入不小于 %1 的整数。</translation>
    </message>
    <message>
        <source>Enter a number of at least %1.</source>
        <translation>请输入不小于 %1 的数。</translation>
    </message>
    <message>
        <source>Enter a whole number of at most %1.</source>
        <translation>请输入不大于 %1 的整数。</translation>
    </message>
    <message>
        <source>Enter a number of at most %1.</source>
        <translation>请输入不大于 %1 的数。</translation>
    </message>
    <message>
        <source>Enter a whole number (%1).</source>
        <translation>请输入整数（%1）。</translation>
    </message>
    <message>
        <source>Enter a number (%1).</source>
        <translation>请输入数（%1）。</translation>
    </message>
    <message>
        <source>Enter a whole number.</source>
        <translation>请输入整数。</translation>
    </message>
    <message>
        <source>Enter a number.</source>
        <translation>请输入数。</translation>
    </message>
    <message numerus="yes">
        <source>Digits allowed after the point: %n.</source>
        <translation>
            <numerusform>小数点后最多 %n 位。</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter an angle from %1 to %2, such as 30.5 or 30 30 00.</source>
        <translation>请输入 %1 到 %2 之间的角度，例如 30.5 或 30 30 00。</translation>
    </message>
</context>
<context>
    <name>PropertyGridCtrl</name>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>“%1”：%2</translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation>复制值(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;All Rows</source>
        <translation>复制全部行(&amp;A)</translation>
    </message>
</context>
<context>
    <name>PropertyGridDelegate</name>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
</context>
<context>
    <name>PropertyGridModel</name>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>QualityCheck</name>
    <message>
        <source>Check Survey Line:</source>
        <translation>检查测线：</translation>
    </message>
    <message>
        <source>Design-Measure Horizontal Coord Out-range.</source>
        <translation>设计与实测平面坐标超限。</translation>
    </message>
    <message>
        <source>Design-Measure Vertical Coord Out-range.</source>
        <translation>设计与实测高程超限。</translation>
    </message>
    <message>
        <source>Design-Measure Horizontal AND Vertical Coord Out-range.</source>
        <translation>设计与实测平面坐标和高程均超限。</translation>
    </message>
    <message>
        <source>Reference Station Dist Out-range.</source>
        <translation>基准站距离超限。</translation>
    </message>
    <message>
        <source>HRMS Out-range.</source>
        <translation>HRMS 超限。</translation>
    </message>
    <message>
        <source>VRMS Accuracy Out-range.</source>
        <translation>VRMS 精度超限。</translation>
    </message>
    <message>
        <source>HRMS AND VRMS Accuracy Out-range.</source>
        <translation>HRMS 和 VRMS 精度均超限。</translation>
    </message>
    <message>
        <source>Antenna Too High.</source>
        <translation>天线过高。</translation>
    </message>
    <message>
        <source>Antenna Too Low.</source>
        <translation>天线过低。</translation>
    </message>
    <message>
        <source>PDOP Out-range.</source>
        <translation>PDOP 超限。</translation>
    </message>
    <message>
        <source>HDOP Out-range.</source>
        <translation>HDOP 超限。</translation>
    </message>
    <message>
        <source>PDOP AND HDOP Out-range.</source>
        <translation>PDOP 和 HDOP 均超限。</translation>
    </message>
    <message>
        <source>VDOP Out-range.</source>
        <translation>VDOP 超限。</translation>
    </message>
    <message>
        <source>PDOP AND VDOP Out-range.</source>
        <translation>PDOP 和 VDOP 均超限。</translation>
    </message>
    <message>
        <source>HDOP AND VDOP Out-range.</source>
        <translation>HDOP 和 VDOP 均超限。</translation>
    </message>
    <message>
        <source>PDOP, HDOP AND VDOP Out-range.</source>
        <translation>PDOP、HDOP 和 VDOP 均超限。</translation>
    </message>
    <message>
        <source>Satellite Number Insufficient.</source>
        <translation>卫星数不足。</translation>
    </message>
    <message>
        <source>Horizontal Accuracy Out-range.</source>
        <translation>横向偏差超限。</translation>
    </message>
    <message>
        <source>Vertical Accuracy Out-range.</source>
        <translation>纵向偏差超限。</translation>
    </message>
    <message>
        <source>Horizontal AND Vertical Accuracy Out-range.</source>
        <translation>横向和纵向偏差均超限。</translation>
    </message>
    <message>
        <source>The transversal deviation: how far the point lies beside its line.</source>
        <translation>横向偏差：实测点偏离测线的距离。</translation>
    </message>
    <message>
        <source>The longitudinal deviation: how far the point lies from its place, measured along its line.</source>
        <translation>纵向偏差：实测点沿测线方向偏离设计位置的距离。</translation>
    </message>
    <message>
        <source>The transversal and the longitudinal deviation: how far the point lies from its place, measured across and along its line.</source>
        <translation>横向偏差和纵向偏差：实测点垂直于测线和沿测线方向偏离设计位置的距离。</translation>
    </message>
</context>
<context>
    <name>QualityLimits</name>
    <message>
        <source>The minimum is above this maximum: no value passes.</source>
        <translation>下限大于此上限：任何值都不合格。</translation>
    </message>
    <message>
        <source>With a minus every resurvey is out of range.</source>
        <translation>限差为负时，所有复测点都会超限。</translation>
    </message>
    <message>
        <source>The minus does not count: the limit is %1.</source>
        <translation>负号不起作用：限差为 %1。</translation>
    </message>
</context>
<context>
    <name>QualityProblems</name>
    <message>
        <source>The result does not say where its point was designed, so nobody knows how far from there it lies.</source>
        <translation>该成果没有记录点的设计位置，因此无法知道它偏离多远。</translation>
    </message>
    <message>
        <source>North, east or elevation of the result is no number.</source>
        <translation>该成果的北坐标、东坐标或高程不是数字。</translation>
    </message>
</context>
<context>
    <name>QualityReport</name>
    <message>
        <source>Line</source>
        <translation>线号</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点号</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Rover</source>
        <translation>流动站</translation>
    </message>
    <message>
        <source>Surveyor</source>
        <translation>测量员</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>基站</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>质量码</translation>
    </message>
    <message>
        <source>What failed</source>
        <translation>超限项目</translation>
    </message>
    <message>
        <source>Worst test</source>
        <translation>最严重项目</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>限差</translation>
    </message>
    <message>
        <source>Value / limit</source>
        <translation>值 / 限差</translation>
    </message>
    <message>
        <source>dE (m)</source>
        <translation>dE (m)</translation>
    </message>
    <message>
        <source>dN (m)</source>
        <translation>dN (m)</translation>
    </message>
    <message>
        <source>d2D (m)</source>
        <translation>d2D (m)</translation>
    </message>
    <message>
        <source>dH (m)</source>
        <translation>dH (m)</translation>
    </message>
    <message>
        <source>Across (m)</source>
        <translation>横向偏差 (m)</translation>
    </message>
    <message>
        <source>Along (m)</source>
        <translation>纵向偏差 (m)</translation>
    </message>
    <message>
        <source>Horizontal accuracy (m)</source>
        <translation>水平精度 (m)</translation>
    </message>
    <message>
        <source>Vertical accuracy (m)</source>
        <translation>垂直精度 (m)</translation>
    </message>
    <message>
        <source>PDOP</source>
        <translation>PDOP</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>VDOP</source>
        <translation>VDOP</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>卫星数</translation>
    </message>
    <message>
        <source>Base (km)</source>
        <translation>基站距离 (km)</translation>
    </message>
    <message>
        <source>Antenna (m)</source>
        <translation>天线高 (m)</translation>
    </message>
    <message>
        <source>Solution</source>
        <translation>解类型</translation>
    </message>
    <message>
        <source>Age (s)</source>
        <translation>差分龄期 (s)</translation>
    </message>
    <message>
        <source>Epochs</source>
        <translation>历元数</translation>
    </message>
    <message>
        <source>Obstacle</source>
        <translation>障碍物</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Decision</source>
        <translation>处理意见</translation>
    </message>
    <message>
        <source>accept</source>
        <translation>接受</translation>
    </message>
    <message>
        <source>stake again</source>
        <translation>重新放样</translation>
    </message>
    <message>
        <source>reject</source>
        <translation>作废</translation>
    </message>
    <message>
        <source>ask</source>
        <translation>待询问</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>不合格点</translation>
    </message>
    <message>
        <source>has failed points</source>
        <translation>有不合格点</translation>
    </message>
    <message>
        <source>has failed points, not complete</source>
        <translation>有不合格点，未完成</translation>
    </message>
    <message>
        <source>not staked</source>
        <translation>未放样</translation>
    </message>
    <message>
        <source>not complete</source>
        <translation>未完成</translation>
    </message>
    <message>
        <source>not in the design</source>
        <translation>不在设计中</translation>
    </message>
    <message>
        <source>no result chosen</source>
        <translation>无所选成果</translation>
    </message>
    <message>
        <source>not all judged</source>
        <translation>未全部评定</translation>
    </message>
    <message>
        <source>in order</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>测线</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>结论</translation>
    </message>
    <message>
        <source>Designed</source>
        <translation>设计点</translation>
    </message>
    <message>
        <source>Staked</source>
        <translation>已放样</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>剩余</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>成果</translation>
    </message>
    <message>
        <source>Within limits</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>Failed (%)</source>
        <translation>不合格率 (%)</translation>
    </message>
    <message>
        <source>Not judged</source>
        <translation>未评定</translation>
    </message>
    <message>
        <source>Worst point</source>
        <translation>最严重点</translation>
    </message>
    <message>
        <source>All results of the period and surveyors, with resurveys and check measurements. Each is judged anew by the limits above.</source>
        <translation>所选时段和测量员的全部成果，包括复测和检核测量；均按上述限差重新评定。</translation>
    </message>
    <message>
        <source>Designed, staked, left</source>
        <translation>设计点、已放样、剩余</translation>
    </message>
    <message>
        <source>Design points; those with a result of exactly their line and point number, whenever and by whomever it was measured; and those without.</source>
        <translation>设计点；有相同线号和点号成果的设计点（不论何时由何人测量）；没有这种成果的设计点。</translation>
    </message>
    <message>
        <source>Results that passed every test. A value on its limit passes.</source>
        <translation>通过全部检查的成果；等于限差的值为合格。</translation>
    </message>
    <message>
        <source>Results that failed one test or more.</source>
        <translation>至少一项检查不合格的成果。</translation>
    </message>
    <message>
        <source>Results that failed no test, but have no design position or a value that is no number.</source>
        <translation>没有不合格项目，但没有设计坐标或某个值不是数字的成果。</translation>
    </message>
    <message>
        <source>Of points and lines: failed of within limits and failed. Of a test: failed of tested.</source>
        <translation>对点和测线：不合格数占合格与不合格总数的比例；对一项检查：不合格数占检查数的比例。</translation>
    </message>
    <message>
        <source>Tested</source>
        <translation>检查数</translation>
    </message>
    <message>
        <source>Results with a value for this test. Those without a design position are not tested for their distance from it.</source>
        <translation>具有该项检查所需数值的成果；没有设计坐标的成果不检查其与设计点的距离。</translation>
    </message>
    <message>
        <source>The quality code of the result. Each of its digits, counted from the right, is a family of tests:</source>
        <translation>成果的质量码，自右向左每一位为一类检查：</translation>
    </message>
    <message>
        <source>Code, digit 1</source>
        <translation>质量码第 1 位</translation>
    </message>
    <message>
        <source>The position from the design: 1 distance, 2 height, 3 both.</source>
        <translation>与设计点之差：1 为平面距离，2 为高差，3 为两者。</translation>
    </message>
    <message>
        <source>Code, digit 2</source>
        <translation>质量码第 2 位</translation>
    </message>
    <message>
        <source>The resurvey; always 0 here.</source>
        <translation>复测；此处总为 0。</translation>
    </message>
    <message>
        <source>Code, digit 3</source>
        <translation>质量码第 3 位</translation>
    </message>
    <message>
        <source>1 the base is too far.</source>
        <translation>1 为基站过远。</translation>
    </message>
    <message>
        <source>Code, digit 4</source>
        <translation>质量码第 4 位</translation>
    </message>
    <message>
        <source>The accuracy: 1 horizontal, 2 vertical, 3 both.</source>
        <translation>精度：1 为水平，2 为垂直，3 为两者。</translation>
    </message>
    <message>
        <source>Code, digit 5</source>
        <translation>质量码第 5 位</translation>
    </message>
    <message>
        <source>The antenna: 1 too high, 2 too low.</source>
        <translation>天线：1 为过高，2 为过低。</translation>
    </message>
    <message>
        <source>Code, digit 6</source>
        <translation>质量码第 6 位</translation>
    </message>
    <message>
        <source>1 PDOP, 2 HDOP, 4 VDOP; of several ones the sum.</source>
        <translation>1 为 PDOP，2 为 HDOP，4 为 VDOP；多项时为其和。</translation>
    </message>
    <message>
        <source>Code, digit 7</source>
        <translation>质量码第 7 位</translation>
    </message>
    <message>
        <source>1 too few satellites.</source>
        <translation>1 为卫星数不足。</translation>
    </message>
    <message>
        <source>Code, digit 8</source>
        <translation>质量码第 8 位</translation>
    </message>
    <message>
        <source>The deviation from the line: 1 across, 2 along, 3 both.</source>
        <translation>与测线的偏差：1 为横向，2 为纵向，3 为两者。</translation>
    </message>
    <message>
        <source>The failed test whose value is the most times over its limit, or under it.</source>
        <translation>不合格项目中超出或低于限差倍数最大的一项。</translation>
    </message>
    <message>
        <source>Value, limit</source>
        <translation>值、限差</translation>
    </message>
    <message>
        <source>Those of the worst test, in the unit behind its name; a negative value keeps its sign.</source>
        <translation>最严重项目的值和限差，单位见其名称之后；负值保留符号。</translation>
    </message>
    <message>
        <source>Without a sign: above 1 when the value is too large, below 1 when it is too small.</source>
        <translation>不计符号：值过大时大于 1，过小时小于 1。</translation>
    </message>
    <message>
        <source>dE, dN, dH</source>
        <translation>dE、dN、dH</translation>
    </message>
    <message>
        <source>Measured minus design, in metres: to the east, to the north, upwards.</source>
        <translation>实测减设计，单位为米：向东、向北、向上。</translation>
    </message>
    <message>
        <source>d2D</source>
        <translation>d2D</translation>
    </message>
    <message>
        <source>The distance in the plane from the design to the measured position, in metres.</source>
        <translation>设计位置到实测位置的平面距离，单位为米。</translation>
    </message>
    <message>
        <source>Across, along</source>
        <translation>横向偏差、纵向偏差</translation>
    </message>
    <message>
        <source>Metres beside the line, and metres along it from the point&apos;s place, as the rover recorded them.</source>
        <translation>偏离测线的距离和沿测线方向偏离设计位置的距离，单位为米，由流动站记录。</translation>
    </message>
    <message>
        <source>The distance from the base station.</source>
        <translation>与基站的距离。</translation>
    </message>
    <message>
        <source>Red values</source>
        <translation>红色数值</translation>
    </message>
    <message>
        <source>They are outside their limits.</source>
        <translation>超出限差的数值。</translation>
    </message>
    <message>
        <source>Yours: choose accept, stake again, reject or ask in each row.</source>
        <translation>由您填写：在每一行选择接受、重新放样、作废或待询问。</translation>
    </message>
    <message>
        <source>Verdict: has failed points</source>
        <translation>结论：有不合格点</translation>
    </message>
    <message>
        <source>A result of the line failed; &quot;not complete&quot;: design points are left, too.</source>
        <translation>测线有不合格的成果；“未完成”：还有剩余的设计点。</translation>
    </message>
    <message>
        <source>Verdict: not staked, not complete</source>
        <translation>结论：未放样、未完成</translation>
    </message>
    <message>
        <source>No result failed, but all, or some, of the line&apos;s design points are left.</source>
        <translation>没有不合格的成果，但测线的设计点全部或部分剩余。</translation>
    </message>
    <message>
        <source>Verdict: not in the design</source>
        <translation>结论：不在设计中</translation>
    </message>
    <message>
        <source>Results, none of them failed, on a line that has no design points.</source>
        <translation>测线没有设计点，但有成果，且没有不合格的。</translation>
    </message>
    <message>
        <source>Verdict: no result chosen</source>
        <translation>结论：无所选成果</translation>
    </message>
    <message>
        <source>The line is staked, but not in this period or by these surveyors.</source>
        <translation>测线已放样，但不在所选时段内，或不是由所选测量员完成。</translation>
    </message>
    <message>
        <source>Verdict: not all judged</source>
        <translation>结论：未全部评定</translation>
    </message>
    <message>
        <source>The line is staked, and no result failed, but some were not judged.</source>
        <translation>测线已放样，没有不合格的成果，但有些成果未评定。</translation>
    </message>
    <message>
        <source>Verdict: in order</source>
        <translation>结论：合格</translation>
    </message>
    <message>
        <source>Every design point of the line is staked, and all results are within limits.</source>
        <translation>测线的设计点全部放样，成果全部合格。</translation>
    </message>
    <message>
        <source>Worst test and point of a line</source>
        <translation>测线的最严重项目和点</translation>
    </message>
    <message>
        <source>The result of the line that is the most times beyond its limit.</source>
        <translation>测线中超出限差倍数最大的成果。</translation>
    </message>
    <message>
        <source>Results judged: %1, failed: %2, on lines: %3, not judged: %4.</source>
        <translation>已评定成果：%1，不合格：%2，涉及测线：%3，未评定：%4。</translation>
    </message>
    <message>
        <source>These results failed no test, but have no design position or a value that is no number.</source>
        <translation>这些成果没有不合格项目，但没有设计坐标，或者某个值不是数字。</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点数</translation>
    </message>
    <message>
        <source>Design points</source>
        <translation>设计点</translation>
    </message>
    <message>
        <source>Receivers</source>
        <translation>接收点</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>激发点</translation>
    </message>
    <message>
        <source>All</source>
        <translation>合计</translation>
    </message>
    <message>
        <source>What is left of the design is counted over all results; results are those of the period and surveyors above.</source>
        <translation>剩余的设计点按全部成果统计；成果仅限上述时段和测量员。</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>检查项目</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>检查项目</translation>
    </message>
    <message>
        <source>Receivers failed / tested</source>
        <translation>接收点不合格 / 检查数</translation>
    </message>
    <message>
        <source>Receivers (%)</source>
        <translation>接收点 (%)</translation>
    </message>
    <message>
        <source>Sources failed / tested</source>
        <translation>激发点不合格 / 检查数</translation>
    </message>
    <message>
        <source>Sources (%)</source>
        <translation>激发点 (%)</translation>
    </message>
    <message>
        <source>No result failed a test.</source>
        <translation>没有不合格的成果。</translation>
    </message>
    <message>
        <source>Failed results by test</source>
        <translation>各检查项目的不合格成果数</translation>
    </message>
    <message>
        <source>Lines with the largest share of failed results</source>
        <translation>不合格率最高的测线</translation>
    </message>
    <message>
        <source>Judged</source>
        <translation>已评定</translation>
    </message>
    <message>
        <source>Distance from design</source>
        <translation>与设计点的距离</translation>
    </message>
    <message>
        <source>Height from design</source>
        <translation>与设计点的高差</translation>
    </message>
    <message>
        <source>Distance from base</source>
        <translation>与基站的距离</translation>
    </message>
    <message>
        <source>Horizontal accuracy</source>
        <translation>水平精度</translation>
    </message>
    <message>
        <source>Vertical accuracy</source>
        <translation>垂直精度</translation>
    </message>
    <message>
        <source>Antenna too high</source>
        <translation>天线过高</translation>
    </message>
    <message>
        <source>Antenna too low</source>
        <translation>天线过低</translation>
    </message>
    <message>
        <source>Across the line</source>
        <translation>横向偏差</translation>
    </message>
    <message>
        <source>Along the line</source>
        <translation>纵向偏差</translation>
    </message>
</context>
<context>
    <name>QualityTests</name>
    <message>
        <source>Horizontal distance from the design</source>
        <translation>与设计点的水平距离</translation>
    </message>
    <message>
        <source>Difference in height from the design</source>
        <translation>与设计点的高差</translation>
    </message>
    <message>
        <source>Distance from the base station</source>
        <translation>与基站的距离</translation>
    </message>
    <message>
        <source>Antenna height</source>
        <translation>天线高</translation>
    </message>
    <message>
        <source>Number of satellites</source>
        <translation>卫星数</translation>
    </message>
    <message>
        <source>Transversal deviation</source>
        <translation>横向偏差</translation>
    </message>
    <message>
        <source>Longitudinal deviation</source>
        <translation>纵向偏差</translation>
    </message>
    <message>
        <source>%1 %2 was out of range in the last check. Its limit is now %3.</source>
        <translation>%1 %2 在上次检查时超限，现在的限差为 %3。</translation>
    </message>
    <message>
        <source>%1 %2 is over its limit %3.</source>
        <translation>%1 %2 超过上限 %3。</translation>
    </message>
    <message>
        <source>%1 %2 is under its limit %3.</source>
        <translation>%1 %2 低于下限 %3。</translation>
    </message>
</context>
<context>
    <name>Raster</name>
    <message>
        <source>&quot;%1&quot; does not say where it lies: it has neither a position of its own nor a world file beside it.</source>
        <translation>“%1”没有说明其所在位置：既无自身坐标，旁边也没有世界文件（world file）。</translation>
    </message>
    <message>
        <source>Parts of &quot;%1&quot; cannot be read: %2</source>
        <translation>“%1”的部分内容无法读取：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read as an image: %2</source>
        <translation>“%1”无法作为影像读取：%2</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>文件“%1”不存在。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>文件“%1”是空的。</translation>
    </message>
    <message>
        <source>not enough memory for its pixels</source>
        <translation>内存不足，无法存放其像素</translation>
    </message>
    <message>
        <source>The overviews of &quot;%1&quot; cannot be built: %2</source>
        <translation>无法建立“%1”的金字塔：%2</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; cannot be written.</source>
        <translation>文件夹“%1”不可写。</translation>
    </message>
</context>
<context>
    <name>RasterLayerImp</name>
    <message>
        <source>The base map &quot;%1&quot; is complete again.</source>
        <translation>底图“%1”已恢复完整。</translation>
    </message>
</context>
<context>
    <name>ReSurveyPointCheckCommand</name>
    <message>
        <source>Resurvey Check Complete!</source>
        <translation>复测点检查完成！</translation>
    </message>
</context>
<context>
    <name>RecentProjectCommand</name>
    <message>
        <source>&amp;No projects yet</source>
        <translation>还没有工程(&amp;N)</translation>
    </message>
</context>
<context>
    <name>RedoCommand</name>
    <message>
        <source>Redo %1</source>
        <translation>重做 %1</translation>
    </message>
</context>
<context>
    <name>ReportFilesPanel</name>
    <message>
        <source>File &amp;names:</source>
        <translation>文件名(&amp;N)：</translation>
    </message>
    <message>
        <source>Reports:</source>
        <translation>报告：</translation>
    </message>
    <message>
        <source>&amp;%1 %2</source>
        <comment>number and name of a report</comment>
        <translation>&amp;%1 %2</translation>
    </message>
    <message>
        <source>File name: %1</source>
        <translation>文件名：%1</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation>文件夹(&amp;O)：</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
    </message>
    <message>
        <source>Folder of the Reports</source>
        <translation>报告的文件夹</translation>
    </message>
    <message>
        <source>Please choose a report.</source>
        <translation>请选择一个报告。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder.</source>
        <translation>“%1”是一个文件夹。</translation>
    </message>
    <message>
        <source>Two reports have the file name &quot;%1&quot;.</source>
        <translation>两个报告的文件名都是“%1”。</translation>
    </message>
</context>
<context>
    <name>ReportKinds</name>
    <message>
        <source>Survey results</source>
        <translation>测量成果</translation>
    </message>
    <message>
        <source>Quality check</source>
        <translation>质量检查</translation>
    </message>
    <message>
        <source>Quality statistics</source>
        <translation>质量统计</translation>
    </message>
    <message>
        <source>Rover log</source>
        <translation>流动站日志</translation>
    </message>
    <message>
        <source>Daily report</source>
        <translation>日报</translation>
    </message>
</context>
<context>
    <name>ReportProgress</name>
    <message>
        <source>Export Report</source>
        <translation>导出报告</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Report %1 of %2: %3</source>
        <translation>第 %1 个报告，共 %2 个：%3</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Elevation as measured; no geoid is in use, so the sea height is the same.</source>
        <translation>高程为实测值；未使用大地水准面，海拔高与高程相同。</translation>
    </message>
    <message>
        <source>Elevation as measured; the sea height is by the geoid &quot;%1&quot;.</source>
        <translation>高程为实测值；海拔高由大地水准面“%1”求得。</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>自 %1 起</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>至 %1 止</translation>
    </message>
    <message>
        <source>all results</source>
        <translation>全部成果</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>工程</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>时段</translation>
    </message>
    <message>
        <source>Surveyors</source>
        <translation>测量员</translation>
    </message>
    <message>
        <source>all</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>in the zone %1</source>
        <translation>时区 %1</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>坐标系统</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Heights</source>
        <translation>高程</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>汇总</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>限差</translation>
    </message>
    <message>
        <source>Signs</source>
        <translation>符号约定</translation>
    </message>
    <message>
        <source>Differences are measured minus design: positive to the north, to the east and upwards.</source>
        <translation>差值为实测减设计：向北、向东、向上为正。</translation>
    </message>
    <message>
        <source>Points judged</source>
        <translation>参与评定的点数</translation>
    </message>
    <message>
        <source>Points not judged</source>
        <translation>未评定的点数</translation>
    </message>
    <message>
        <source>Why not judged</source>
        <translation>未评定的原因</translation>
    </message>
    <message>
        <source>Limit or figure</source>
        <translation>限差或指标</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Writing the report</source>
        <translation>正在写报告</translation>
    </message>
    <message>
        <source>The report was cancelled; no file was written.</source>
        <translation>报告已取消，未写入文件。</translation>
    </message>
</context>
<context>
    <name>ResultColors</name>
    <message>
        <source>off its place</source>
        <translation>偏离设计位置</translation>
    </message>
    <message>
        <source>resurvey at fault</source>
        <translation>复测有误</translation>
    </message>
    <message>
        <source>poor fix</source>
        <translation>定位质量差</translation>
    </message>
    <message>
        <source>wrong antenna height</source>
        <translation>天线高有误</translation>
    </message>
    <message>
        <source>no design position</source>
        <translation>无设计坐标</translation>
    </message>
    <message>
        <source>within limits</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>over the limit of %1 m</source>
        <translation>超过限差 %1 m</translation>
    </message>
    <message>
        <source>up to %1 m</source>
        <translation>不超过 %1 m</translation>
    </message>
    <message>
        <source>not told</source>
        <translation>未注明</translation>
    </message>
    <message>
        <source>others (%1)</source>
        <translation>其他（%1）</translation>
    </message>
    <message>
        <source>earlier</source>
        <translation>更早</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>结论</translation>
    </message>
    <message>
        <source>Solution type</source>
        <translation>解类型</translation>
    </message>
    <message>
        <source>Horizontal accuracy</source>
        <translation>水平精度</translation>
    </message>
    <message>
        <source>Surveyor</source>
        <translation>测量员</translation>
    </message>
    <message>
        <source>Rover</source>
        <translation>流动站</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日期</translation>
    </message>
</context>
<context>
    <name>ResultCsv</name>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2.</source>
        <translation>文件“%1”无法写入：%2。</translation>
    </message>
</context>
<context>
    <name>ResultList</name>
    <message>
        <source>Save as CSV</source>
        <translation>另存为 CSV</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save as CSV...</source>
        <translation>另存为 CSV(&amp;S)...</translation>
    </message>
    <message>
        <source>Point %1 of line %2 is not in the project any more.</source>
        <translation>测线 %2 的点 %1 已不在工程中。</translation>
    </message>
</context>
<context>
    <name>ResultModel</name>
    <message>
        <source>Point Num</source>
        <translation>点号</translation>
    </message>
    <message>
        <source>Line Num</source>
        <translation>线号</translation>
    </message>
    <message>
        <source>Describe</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>限值</translation>
    </message>
    <message>
        <source>North</source>
        <translation>北</translation>
    </message>
    <message>
        <source>East</source>
        <translation>东</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>高程</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>方位角</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Not Surveyed</source>
        <translation>未测量</translation>
    </message>
    <message>
        <source>From what it repeats: north %1, east %2, height %3.</source>
        <translation>与所重复的点相差：北 %1，东 %2，高 %3。</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高程</translation>
    </message>
    <message>
        <source>Its resurvey is %1.</source>
        <translation>它的复测点是 %1。</translation>
    </message>
    <message>
        <source>Beyond the tolerance of %1 m.</source>
        <translation>超过限差 %1 m。</translation>
    </message>
    <message>
        <source>north</source>
        <translation>北</translation>
    </message>
    <message>
        <source>east</source>
        <translation>东</translation>
    </message>
    <message>
        <source>elevation</source>
        <translation>高程</translation>
    </message>
    <message>
        <source>re north</source>
        <translation>复测北</translation>
    </message>
    <message>
        <source>re east</source>
        <translation>复测东</translation>
    </message>
    <message>
        <source>re elevation</source>
        <translation>复测高程</translation>
    </message>
    <message>
        <source>north diff</source>
        <translation>北差</translation>
    </message>
    <message>
        <source>east diff</source>
        <translation>东差</translation>
    </message>
    <message>
        <source>elevation diff</source>
        <translation>高差</translation>
    </message>
    <message>
        <source>all: too far apart</source>
        <translation>全部：相差过大</translation>
    </message>
    <message>
        <source>mean of %1</source>
        <translation>%1 次平均</translation>
    </message>
    <message>
        <source>The measurements differ by more than the tolerance: the point stays as it is.</source>
        <translation>各次测量之差超过限差：该点保持原样。</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>测量次数</translation>
    </message>
    <message>
        <source>Differ</source>
        <translation>平面相差</translation>
    </message>
    <message>
        <source>In height</source>
        <translation>高程相差</translation>
    </message>
    <message>
        <source>Stays</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Surveyor</source>
        <translation>测量员</translation>
    </message>
    <message>
        <source>HRMS</source>
        <translation>HRMS</translation>
    </message>
    <message>
        <source>Point moves</source>
        <translation>点位移动</translation>
    </message>
    <message>
        <source>Up by</source>
        <translation>升高</translation>
    </message>
</context>
<context>
    <name>ResurveyCheck</name>
    <message>
        <source>Resurvey Check Survey Line:</source>
        <translation>复测检查测线：</translation>
    </message>
    <message>
        <source>Resurvey Coord Out-range.</source>
        <translation>复测坐标超限。</translation>
    </message>
    <message>
        <source>Resurvey Point No Corresponding Point.</source>
        <translation>复测点没有对应点。</translation>
    </message>
</context>
<context>
    <name>RoverReport</name>
    <message>
        <source>Bases</source>
        <translation>基站</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Rovers</source>
        <translation>流动站</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>天数</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点数</translation>
    </message>
    <message>
        <source>First</source>
        <translation>首点时间</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>末点时间</translation>
    </message>
    <message>
        <source>North (%1)</source>
        <translation>北 (%1)</translation>
    </message>
    <message>
        <source>East (%1)</source>
        <translation>东 (%1)</translation>
    </message>
    <message>
        <source>Height (m)</source>
        <translation>高程 (m)</translation>
    </message>
    <message>
        <source>Latitude (%1)</source>
        <translation>纬度 (%1)</translation>
    </message>
    <message>
        <source>Longitude (%1)</source>
        <translation>经度 (%1)</translation>
    </message>
    <message>
        <source>Line / point</source>
        <translation>线号 / 点号</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>移动过</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>成果数</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>起始时间</translation>
    </message>
    <message>
        <source>On the plane (m)</source>
        <translation>平面 (m)</translation>
    </message>
    <message>
        <source>In height (m)</source>
        <translation>高程 (m)</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>最近</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Farthest</source>
        <translation>最远</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>基站</translation>
    </message>
    <message>
        <source>Used by</source>
        <translation>使用情况</translation>
    </message>
    <message>
        <source>Position in its first result</source>
        <translation>首个成果中的位置</translation>
    </message>
    <message>
        <source>Put elsewhere by other results</source>
        <translation>其他成果中的不同位置</translation>
    </message>
    <message>
        <source>Distance of the points (km)</source>
        <translation>点到基站的距离 (km)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Rover</source>
        <translation>流动站</translation>
    </message>
    <message>
        <source>Surveyor</source>
        <translation>测量员</translation>
    </message>
    <message>
        <source>From</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>To</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线号</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点号</translation>
    </message>
    <message>
        <source>Distance (m)</source>
        <translation>距离 (m)</translation>
    </message>
    <message>
        <source>Gaps over %1 minutes</source>
        <translation>超过 %1 分钟的间断</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>间断</translation>
    </message>
    <message>
        <source>Last point before it</source>
        <translation>间断前最后一点</translation>
    </message>
    <message>
        <source>First point after it</source>
        <translation>间断后第一点</translation>
    </message>
    <message>
        <source>Between them</source>
        <translation>两点之间</translation>
    </message>
    <message>
        <source>These results have no design position, or a value that is no number.</source>
        <translation>这些成果没有设计坐标，或者有的值不是数字。</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>作业概况</translation>
    </message>
    <message>
        <source>Surveyors</source>
        <translation>测量员</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>作业段</translation>
    </message>
    <message>
        <source>Gaps over %1 min</source>
        <translation>间断 (&gt;%1 分钟)</translation>
    </message>
    <message>
        <source>Bases moved</source>
        <translation>移动过的基站</translation>
    </message>
    <message>
        <source>Others (%1)</source>
        <translation>其他 (%1)</translation>
    </message>
    <message>
        <source>Points by day and rover</source>
        <translation>各日各流动站的点数</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合计</translation>
    </message>
    <message>
        <source>Earlier days (%1)</source>
        <translation>更早的日期（%1 天）</translation>
    </message>
    <message>
        <source>Without a time</source>
        <translation>没有时间</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>超限</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>Points an hour</source>
        <translation>每小时点数</translation>
    </message>
    <message>
        <source>The last %1 days with points are shown, and the sum of the earlier ones; the sheet &quot;Sessions&quot; has all.</source>
        <translation>只列出最近 %1 个有点的日期和更早日期的合计；全部日期见工作表“作业段”。</translation>
    </message>
    <message>
        <source>Results without a time: %1. They belong to no day and no gap; their sessions have no hours.</source>
        <translation>没有时间的成果：%1 个。它们不属于任何日期，也不计间断；其作业段没有小时数。</translation>
    </message>
    <message>
        <source>Points a day by rover</source>
        <translation>各流动站每日点数</translation>
    </message>
    <message>
        <source>Sessions: %1, gaps over %2 minutes: %3, bases: %4, of these moved: %5.</source>
        <translation>作业段：%1，超过 %2 分钟的间断：%3，基站：%4，其中移动过的：%5。</translation>
    </message>
    <message>
        <source>Results without a time: %1.</source>
        <translation>没有时间的成果：%1。</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>作业段</translation>
    </message>
    <message>
        <source>The results of a day, a rover, a surveyor and a base. Days begin at midnight in the zone of the times.</source>
        <translation>同一天、同一流动站、同一测量员、同一基站的成果。日期从时间所在时区的零点开始。</translation>
    </message>
    <message>
        <source>From the first to the last result of a session; 0 of a single one, and none of results without a time.</source>
        <translation>从作业段的第一个成果到最后一个成果；只有一个成果时为 0，没有时间的成果没有小时数。</translation>
    </message>
    <message>
        <source>Results of all kinds, also resurveys (the code re_code in the number) and repeats (a number that begins with C). R is receivers, S sources.</source>
        <translation>所有种类的成果，包括复测点（点号中有代码 re_code）和重复点（点号以 C 开头）。R 为检波点，S 为炮点。</translation>
    </message>
    <message>
        <source>Points / hours. On the summary, the hours of a rover are those from its first to its last result of each day, whatever the base.</source>
        <translation>点数 / 小时数。汇总页上流动站的小时数为每天从其第一个成果到最后一个成果的时间，不分基站。</translation>
    </message>
    <message>
        <source>Longest gap</source>
        <translation>最长间断</translation>
    </message>
    <message>
        <source>The longest time between two results of a session, in minutes.</source>
        <translation>一个作业段内相邻两个成果之间的最长时间，单位为分钟。</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>间断</translation>
    </message>
    <message>
        <source>Times of more than %1 minutes without a result of a rover and surveyor on a day, whatever the base. The distance tells a drive from a rest.</source>
        <translation>同一天同一流动站同一测量员超过 %1 分钟没有成果的时间，不分基站。由距离可以区分转移和休息。</translation>
    </message>
    <message>
        <source>Failed, not judged</source>
        <translation>超限、未评定</translation>
    </message>
    <message>
        <source>Failed: out of at least one limit above. Not judged: no design position, or a value that is no number, and out of no limit.</source>
        <translation>超限：至少超出上面的一项限差。未评定：没有设计坐标，或者有的值不是数字，且没有超出任何限差。</translation>
    </message>
    <message>
        <source>Mean, worst, fewest</source>
        <translation>平均、最差、最少</translation>
    </message>
    <message>
        <source>Of all results of the session whose value is a number; red when it is out of its limit above.</source>
        <translation>作业段内值为数字的所有成果的平均值、最差值、最小值；超出上面的限差时为红色。</translation>
    </message>
    <message>
        <source>Antenna height</source>
        <translation>天线高</translation>
    </message>
    <message>
        <source>The different heights used, and how often the height changed from a result to the next.</source>
        <translation>用过的各个天线高，以及相邻成果之间天线高改变的次数。</translation>
    </message>
    <message>
        <source>Results put the base more than %1 m from where its first result does, on the plane or in height. Nothing is said of results that name no base.</source>
        <translation>有成果给出的基站位置与首个成果给出的位置相差超过 %1 m（平面或高程）。没有注明基站的成果不作判断。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Longest gap (min)</source>
        <translation>最长间断 (分钟)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Resurveys</source>
        <translation>复测点</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>重复点</translation>
    </message>
    <message>
        <source>An hour</source>
        <translation>每小时</translation>
    </message>
    <message>
        <source>Not judged</source>
        <translation>未评定</translation>
    </message>
    <message>
        <source>PDOP</source>
        <translation>PDOP</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>最差</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>卫星数</translation>
    </message>
    <message>
        <source>Fewest</source>
        <translation>最少</translation>
    </message>
    <message>
        <source>HRMS (m)</source>
        <translation>HRMS (m)</translation>
    </message>
    <message>
        <source>VRMS (m)</source>
        <translation>VRMS (m)</translation>
    </message>
    <message>
        <source>Solutions</source>
        <translation>解类型</translation>
    </message>
    <message>
        <source>Antenna height (m)</source>
        <translation>天线高 (m)</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>用过</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>最低</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>最高</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>改变次数</translation>
    </message>
    <message>
        <source>Base distance (km)</source>
        <translation>到基站的距离 (km)</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>without a time</source>
        <translation>没有时间</translation>
    </message>
    <message>
        <source>none given</source>
        <translation>未注明</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 等，另有 %2 个</translation>
    </message>
</context>
<context>
    <name>RowFilter</name>
    <message>
        <source>What is not shown stands behind &quot;!&quot;.</source>
        <translation>请在“!”后面写出不显示的内容。</translation>
    </message>
    <message>
        <source>A value to compare with stands behind the sign.</source>
        <translation>请在比较符号后面写出要比较的值。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no time such as 2024/05/01 12:30.</source>
        <translation>“%1”不是时间，时间的写法如 2024/05/01 12:30。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number. Decimals follow a point.</source>
        <translation>“%1”不是数字，小数点请用“.”。</translation>
    </message>
    <message>
        <source>A range has two ends, such as 1001..1040 or 2024/05/01..2024/05/07.</source>
        <translation>范围要写出首尾，如 1001..1040 或 2024/05/01..2024/05/07。</translation>
    </message>
    <message>
        <source>1001: what has this text
&gt; 0.05, &gt;= 0.05, &lt; 3, &lt;= 3, = 4: numbers and times
1001..1040: from the first to the last
!fixed: all others
&gt; 1 &amp; &lt; 2: both; 1001; 1005: one of them
&quot;&gt; 5&quot;: this text as it stands</source>
        <translation>1001：含有这段文字的行
&gt; 0.05、&gt;= 0.05、&lt; 3、&lt;= 3、= 4：比较数字和时间
1001..1040：从前者到后者
!固定解：其余各行
&gt; 1 &amp; &lt; 2：两个条件都满足；1001; 1005：满足其中之一
&quot;&gt; 5&quot;：按原样查找这段文字</translation>
    </message>
</context>
<context>
    <name>SaveCopyCommand</name>
    <message>
        <source>Save a Copy As</source>
        <translation>另存副本</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; exists already. Save the copy there?</source>
        <translation>文件夹“%1”已存在。是否把副本保存在那里？</translation>
    </message>
    <message>
        <source>Its files stay; those of the same names get the present time behind their names.</source>
        <translation>其中的文件会保留；同名文件的名称后将加上当前时间。</translation>
    </message>
    <message>
        <source>The copy will be in &quot;%1&quot;.</source>
        <translation>副本将保存在“%1”。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>无法创建文件夹“%1”。</translation>
    </message>
    <message>
        <source>The copy cannot be saved.</source>
        <translation>无法保存副本。</translation>
    </message>
    <message>
        <source>The copy is in &quot;%1&quot;.</source>
        <translation>副本已保存在“%1”。</translation>
    </message>
    <message>
        <source>The folder of the open project, &quot;%1&quot;, is gone.</source>
        <translation>当前打开工程的文件夹“%1”已不存在。</translation>
    </message>
    <message>
        <source>The open project cannot be saved in its own folder, &quot;%1&quot;.</source>
        <translation>当前打开的工程无法保存在原文件夹“%1”中。</translation>
    </message>
    <message>
        <source>Go on with the copy?</source>
        <translation>是否改用副本继续工作？</translation>
    </message>
    <message>
        <source>The open project stays in &quot;%1&quot;.</source>
        <translation>当前打开的工程仍在“%1”。</translation>
    </message>
    <message>
        <source>The copy cannot be opened.</source>
        <translation>无法打开副本。</translation>
    </message>
</context>
<context>
    <name>SeaHeights</name>
    <message>
        <source>Geoid file &quot;%1&quot;: %2</source>
        <translation>大地水准面文件“%1”：%2</translation>
    </message>
    <message>
        <source>Results whose sea height is their elevation: %1 of %2. %3</source>
        <translation>海拔高取自高程的成果：%1 个，共 %2 个。%3</translation>
    </message>
</context>
<context>
    <name>SelectedProblem</name>
    <message>
        <source>No problem passes the filters.</source>
        <translation>没有问题符合筛选条件。</translation>
    </message>
    <message>
        <source>There is no problem in the list.</source>
        <translation>列表中没有问题。</translation>
    </message>
    <message>
        <source>This is the first of %1 problems.</source>
        <translation>这是 %1 个问题中的第一个。</translation>
    </message>
    <message>
        <source>This was the last of %1 problems.</source>
        <translation>这已是 %1 个问题中的最后一个。</translation>
    </message>
    <message>
        <source>No point that this problem is about is in the project any more.</source>
        <translation>工程中已没有该问题涉及的点。</translation>
    </message>
    <message>
        <source>Point %1 is not in the project any more.</source>
        <translation>工程中已没有点 %1。</translation>
    </message>
    <message>
        <source>Problem %1 of %2: %3</source>
        <translation>问题 %1 / %2：%3</translation>
    </message>
    <message>
        <source>Problem %1 of %2, %3: %4</source>
        <translation>问题 %1 / %2，%3：%4</translation>
    </message>
</context>
<context>
    <name>SettingChoiceCommand</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>The change takes effect at the next start.</source>
        <translation>更改将在下次启动时生效。</translation>
    </message>
</context>
<context>
    <name>ShiftProblems</name>
    <message>
        <source>the survey</source>
        <translation>整个测量</translation>
    </message>
    <message>
        <source>without a name</source>
        <translation>（无名称）</translation>
    </message>
    <message>
        <source>rover %1</source>
        <translation>流动站 %1</translation>
    </message>
    <message>
        <source>base %1</source>
        <translation>基准站 %1</translation>
    </message>
    <message>
        <source>north</source>
        <translation>北</translation>
    </message>
    <message>
        <source>northeast</source>
        <translation>东北</translation>
    </message>
    <message>
        <source>east</source>
        <translation>东</translation>
    </message>
    <message>
        <source>southeast</source>
        <translation>东南</translation>
    </message>
    <message>
        <source>south</source>
        <translation>南</translation>
    </message>
    <message>
        <source>southwest</source>
        <translation>西南</translation>
    </message>
    <message>
        <source>west</source>
        <translation>西</translation>
    </message>
    <message>
        <source>northwest</source>
        <translation>西北</translation>
    </message>
    <message>
        <source>%1 m too high</source>
        <translation>偏高 %1 m</translation>
    </message>
    <message>
        <source>%1 m too low</source>
        <translation>偏低 %1 m</translation>
    </message>
    <message>
        <source>%1 m too far to the %2 (%3°)</source>
        <translation>向%2（%3°）偏移 %1 m</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1，并且%2</translation>
    </message>
    <message>
        <source>All %1 results of %2 are %3.</source>
        <translation>%2的全部 %1 个成果均%3。</translation>
    </message>
    <message>
        <source>%1 of %2 results of %3 are %4.</source>
        <translation>%3的 %2 个成果中有 %1 个%4。</translation>
    </message>
    <message>
        <source>%1 of %2 points that were also measured otherwise are %4 in the results of %3.</source>
        <translation>另外也测量过的 %2 个点中，有 %1 个在%3的成果中%4。</translation>
    </message>
    <message>
        <source>The coordinates of the base are wrong.</source>
        <translation>基准站坐标有误。</translation>
    </message>
    <message>
        <source>The antenna height of the pole is wrong.</source>
        <translation>对中杆天线高有误。</translation>
    </message>
    <message>
        <source>The height of the base is wrong, or that of the pole of rover %1, which alone has used it.</source>
        <translation>基准站高程有误，或者唯一使用它的流动站 %1 的杆高有误。</translation>
    </message>
    <message>
        <source>Design and survey are of different coordinate systems, or every base is wrong.</source>
        <translation>设计与测量的坐标系不同，或者所有基准站都有误。</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 在 %2</translation>
    </message>
    <message>
        <source>%1 from %2 to %3</source>
        <translation>%1 在 %2 至 %3</translation>
    </message>
    <message>
        <source>%1 of %2 results of %3 are %4 on average.</source>
        <translation>%3的 %2 个成果中，%1 个平均%4。</translation>
    </message>
    <message>
        <source>%1 of %2 points that were measured again with %3 are %4 on average, as seen from their first measurement.</source>
        <translation>用%3再次测量的 %2 个点中，%1 个与首次测量相比平均%4。</translation>
    </message>
    <message>
        <source>The height of the base is wrong, or that of the pole.</source>
        <translation>基准站高程有误，或杆高有误。</translation>
    </message>
</context>
<context>
    <name>ShortcutsWindow</name>
    <message>
        <source>Without a menu entry</source>
        <translation>不在菜单中</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>打印(&amp;P)...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>While the map has the focus</source>
        <translation>焦点在地图上时</translation>
    </message>
    <message>
        <source>Come nearer, step back</source>
        <translation>放大、缩小</translation>
    </message>
    <message>
        <source>Move the map</source>
        <translation>移动地图</translation>
    </message>
    <message>
        <source>Arrow keys; farther with Shift</source>
        <translation>方向键；按住 Shift 移动更远</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>显示全图</translation>
    </message>
</context>
<context>
    <name>ShowQuestionsCommand</name>
    <message>
        <source>All questions and messages are shown already.</source>
        <translation>没有被隐藏的提问和消息。</translation>
    </message>
    <message>
        <source>Questions and messages that are shown again: %1.</source>
        <translation>恢复显示的提问和消息：%1 个。</translation>
    </message>
    <message>
        <source>Questions</source>
        <translation>提问</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>&amp;New Project...</source>
        <translation>新建工程(&amp;N)...</translation>
    </message>
    <message>
        <source>Make a folder for a survey and choose its coordinate system</source>
        <translation>为测区建立工程文件夹并选择坐标系统</translation>
    </message>
    <message>
        <source>&amp;Open Project...</source>
        <translation>打开工程(&amp;O)...</translation>
    </message>
    <message>
        <source>Choose a project file</source>
        <translation>选择一个工程文件</translation>
    </message>
    <message>
        <source>Demo &amp;Survey...</source>
        <translation>示例工程(&amp;S)...</translation>
    </message>
    <message>
        <source>An invented survey with known faults, to try everything on</source>
        <translation>带有已知错误的虚构测量数据，用来试用各项功能</translation>
    </message>
    <message>
        <source>No project is open.</source>
        <translation>没有打开的工程。</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>最近的工程</translation>
    </message>
</context>
<context>
    <name>StatisticsPlot</name>
    <message>
        <source>There is nothing to show.</source>
        <translation>没有可显示的内容。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>There are no results to show.</source>
        <translation>没有可显示的成果。</translation>
    </message>
    <message>
        <source>Outside of the picture: %1.</source>
        <translation>在图外：%1。</translation>
    </message>
    <message>
        <source>Line %1, point %2</source>
        <translation>测线 %1，点 %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not written: a plot is saved as PNG, SVG or PDF.</source>
        <translation>未写入“%1”：图只能保存为 PNG、SVG 或 PDF。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2.</source>
        <translation>无法写入“%1”：%2。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1%2</translation>
    </message>
</context>
<context>
    <name>StatisticsPlots</name>
    <message>
        <source>Kind of plot</source>
        <translation>图的种类</translation>
    </message>
    <message>
        <source>Select: a click or a drag shows these results in the tables and on the map</source>
        <translation>选择：单击或拖动，在列表和地图上显示这些成果</translation>
    </message>
    <message>
        <source>Zoom: a drag shows this part. The wheel zooms, the middle button moves</source>
        <translation>缩放：拖动放大这一部分。滚轮缩放，中键移动</translation>
    </message>
    <message>
        <source>Show everything in the plot</source>
        <translation>显示图的全部内容</translation>
    </message>
    <message>
        <source>Save the plot as a picture (PNG, SVG) or PDF</source>
        <translation>把图保存为图片（PNG、SVG）或 PDF</translation>
    </message>
    <message>
        <source>Copy the plot as a picture</source>
        <translation>把图复制为图片</translation>
    </message>
    <message>
        <source>Save Plot</source>
        <translation>保存图</translation>
    </message>
    <message>
        <source>Picture(*.png);;Drawing(*.svg);;PDF file(*.pdf)</source>
        <translation>图片(*.png);;矢量图(*.svg);;PDF 文件(*.pdf)</translation>
    </message>
    <message>
        <source>The plot is on the clipboard.</source>
        <translation>图已复制到剪贴板。</translation>
    </message>
</context>
<context>
    <name>StatisticsReport</name>
    <message>
        <source>up to %1</source>
        <translation>≤ %1</translation>
    </message>
    <message>
        <source>over %1</source>
        <translation>&gt; %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1–%2</translation>
    </message>
    <message>
        <source>Together</source>
        <translation>合计</translation>
    </message>
    <message>
        <source>Without a distance</source>
        <translation>无距离</translation>
    </message>
    <message>
        <source>Distance (m)</source>
        <translation>距离 (m)</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点数</translation>
    </message>
    <message>
        <source>Share (%)</source>
        <translation>比例 (%)</translation>
    </message>
    <message>
        <source>Cumulated</source>
        <translation>累计</translation>
    </message>
    <message>
        <source>Cumulated (%)</source>
        <translation>累计比例 (%)</translation>
    </message>
    <message>
        <source>Distance from the design</source>
        <translation>与设计的距离</translation>
    </message>
    <message>
        <source>All</source>
        <translation>合计</translation>
    </message>
    <message>
        <source>Receivers</source>
        <translation>接收点</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>激发点</translation>
    </message>
    <message>
        <source>Distribution</source>
        <translation>分布</translation>
    </message>
    <message>
        <source>Distances from the design</source>
        <translation>与设计的距离</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线号</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Rover</source>
        <translation>流动站</translation>
    </message>
    <message>
        <source>Surveyor</source>
        <translation>测量员</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>基准站</translation>
    </message>
    <message>
        <source>none given</source>
        <translation>未注明</translation>
    </message>
    <message>
        <source>Designed</source>
        <translation>设计点</translation>
    </message>
    <message>
        <source>Staked</source>
        <translation>已放样</translation>
    </message>
    <message>
        <source>Staked (%)</source>
        <translation>放样率 (%)</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>未放样</translation>
    </message>
    <message>
        <source>Not planned</source>
        <translation>设计外</translation>
    </message>
    <message>
        <source>Within limits</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>Over limit</source>
        <translation>超限</translation>
    </message>
    <message>
        <source>Not judged</source>
        <translation>未评定</translation>
    </message>
    <message>
        <source>Within limits (%)</source>
        <translation>合格率 (%)</translation>
    </message>
    <message>
        <source>Mean dE (m)</source>
        <translation>dE 平均值 (m)</translation>
    </message>
    <message>
        <source>Std. dev. dE (m)</source>
        <translation>dE 标准差 (m)</translation>
    </message>
    <message>
        <source>Mean dN (m)</source>
        <translation>dN 平均值 (m)</translation>
    </message>
    <message>
        <source>Std. dev. dN (m)</source>
        <translation>dN 标准差 (m)</translation>
    </message>
    <message>
        <source>Mean dH (m)</source>
        <translation>dH 平均值 (m)</translation>
    </message>
    <message>
        <source>Std. dev. dH (m)</source>
        <translation>dH 标准差 (m)</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>系统偏移</translation>
    </message>
    <message>
        <source>RMS 2D (m)</source>
        <translation>平面 RMS (m)</translation>
    </message>
    <message>
        <source>95 % 2D (m)</source>
        <translation>平面 95 % (m)</translation>
    </message>
    <message>
        <source>Maximum 2D (m)</source>
        <translation>平面最大值 (m)</translation>
    </message>
    <message>
        <source>Maximum at</source>
        <translation>最大值所在点</translation>
    </message>
    <message>
        <source>Mean hor. accuracy (m)</source>
        <translation>平均平面精度 (m)</translation>
    </message>
    <message>
        <source>Mean vert. accuracy (m)</source>
        <translation>平均高程精度 (m)</translation>
    </message>
    <message>
        <source>Worst PDOP</source>
        <translation>最差 PDOP</translation>
    </message>
    <message>
        <source>Fewest satellites</source>
        <translation>最少卫星数</translation>
    </message>
    <message>
        <source>Fixed (%)</source>
        <translation>固定解比例 (%)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>测线</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Rovers</source>
        <translation>流动站</translation>
    </message>
    <message>
        <source>Surveyors</source>
        <translation>测量员</translation>
    </message>
    <message>
        <source>Bases</source>
        <translation>基准站</translation>
    </message>
    <message>
        <source>Staked until then</source>
        <translation>累计放样</translation>
    </message>
    <message>
        <source>Designed in all</source>
        <translation>设计总点数</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Points staked</source>
        <translation>放样点数</translation>
    </message>
    <message>
        <source>First point</source>
        <translation>首次点号</translation>
    </message>
    <message>
        <source>Second point</source>
        <translation>再次点号</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>结论</translation>
    </message>
    <message>
        <source>dE second - first (m)</source>
        <translation>dE 再次－首次 (m)</translation>
    </message>
    <message>
        <source>dN second - first (m)</source>
        <translation>dN 再次－首次 (m)</translation>
    </message>
    <message>
        <source>2D (m)</source>
        <translation>平面 (m)</translation>
    </message>
    <message>
        <source>dH second - first (m)</source>
        <translation>dH 再次－首次 (m)</translation>
    </message>
    <message>
        <source>First time</source>
        <translation>首次时间</translation>
    </message>
    <message>
        <source>Second time</source>
        <translation>再次时间</translation>
    </message>
    <message>
        <source>Hours between</source>
        <translation>间隔 (h)</translation>
    </message>
    <message>
        <source>First rover</source>
        <translation>首次流动站</translation>
    </message>
    <message>
        <source>Second rover</source>
        <translation>再次流动站</translation>
    </message>
    <message>
        <source>First surveyor</source>
        <translation>首次测量员</translation>
    </message>
    <message>
        <source>Second surveyor</source>
        <translation>再次测量员</translation>
    </message>
    <message>
        <source>First base</source>
        <translation>首次基准站</translation>
    </message>
    <message>
        <source>Second base</source>
        <translation>再次基准站</translation>
    </message>
    <message>
        <source>beyond tolerance</source>
        <translation>超限</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>对数</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均值</translation>
    </message>
    <message>
        <source>Std. dev.</source>
        <translation>标准差</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>RMS</translation>
    </message>
    <message>
        <source>RMS / %1</source>
        <translation>RMS / %1</translation>
    </message>
    <message>
        <source>95 %</source>
        <translation>95 %</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>no first measurement</source>
        <translation>没有首次测量</translation>
    </message>
    <message>
        <source>Resurveys</source>
        <translation>复测</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>重复测量</translation>
    </message>
    <message>
        <source>Staked: %1 of %2 design points, within limits: %3 of %4 judged, lines, days, rovers, surveyors and bases with a shift: %5.</source>
        <translation>已放样：%1（设计点共 %2），合格：%3（参与评定 %4），有系统偏移的测线、日期、流动站、测量员和基准站：%5。</translation>
    </message>
    <message>
        <source>Results are those of the period and surveyors above; what is left is counted over the whole project.</source>
        <translation>成果仅限上述时段和测量员；未放样点按整个工程计算。</translation>
    </message>
    <message>
        <source>Quality of the first measurements</source>
        <translation>首次测量的质量</translation>
    </message>
    <message>
        <source>Mean 2D (m)</source>
        <translation>平面平均值 (m)</translation>
    </message>
    <message>
        <source>Differences from the design</source>
        <translation>与设计之差</translation>
    </message>
    <message>
        <source>Measured minus design</source>
        <translation>实测减设计</translation>
    </message>
    <message>
        <source>Mean (m)</source>
        <translation>平均值 (m)</translation>
    </message>
    <message>
        <source>Std. dev. (m)</source>
        <translation>标准差 (m)</translation>
    </message>
    <message>
        <source>RMS (m)</source>
        <translation>RMS (m)</translation>
    </message>
    <message>
        <source>95 % (m)</source>
        <translation>95 % (m)</translation>
    </message>
    <message>
        <source>Maximum (m)</source>
        <translation>最大值 (m)</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点号</translation>
    </message>
    <message>
        <source>East</source>
        <translation>东</translation>
    </message>
    <message>
        <source>North</source>
        <translation>北</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高程</translation>
    </message>
    <message>
        <source>Distance 2D</source>
        <translation>平面距离</translation>
    </message>
    <message>
        <source>Constant shifts, the largest</source>
        <translation>最大的系统偏移</translation>
    </message>
    <message>
        <source>No line, day, rover, surveyor or base shows a constant shift.</source>
        <translation>没有测线、日期、流动站、测量员或基准站存在系统偏移。</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>所在</translation>
    </message>
    <message>
        <source>Others, marked in the column Shift of the sheets: %1</source>
        <translation>其余在各工作表的“系统偏移”列中标出：%1</translation>
    </message>
    <message>
        <source>Points measured twice</source>
        <translation>测量两次的点</translation>
    </message>
    <message>
        <source>Second minus first</source>
        <translation>再次减首次</translation>
    </message>
    <message>
        <source>RMS dE (m)</source>
        <translation>dE RMS (m)</translation>
    </message>
    <message>
        <source>RMS dN (m)</source>
        <translation>dN RMS (m)</translation>
    </message>
    <message>
        <source>RMS dH (m)</source>
        <translation>dH RMS (m)</translation>
    </message>
    <message>
        <source>2D of a single one (m)</source>
        <translation>单次平面精度 (m)</translation>
    </message>
    <message>
        <source>These results have no design position, or a value that is no number.</source>
        <translation>这些成果没有设计坐标，或者有的值不是数字。</translation>
    </message>
    <message>
        <source>Design points: of a line, a kind of point, or the whole project.</source>
        <translation>设计点数：一条测线、一类点或整个工程。</translation>
    </message>
    <message>
        <source>Results whose line and point number are exactly those of a design point.</source>
        <translation>线号和点号与设计点完全相同的成果。</translation>
    </message>
    <message>
        <source>Of the design points of the line; of days, rovers, surveyors and bases: of the whole design.</source>
        <translation>占该测线设计点的比例；日期、流动站、测量员和基准站为占全部设计点的比例。</translation>
    </message>
    <message>
        <source>Design points without a result in the whole project, whatever period and surveyors are chosen.</source>
        <translation>整个工程中没有成果的设计点，与所选时段和测量员无关。</translation>
    </message>
    <message>
        <source>Results that are no design point, no resurvey and no repeat.</source>
        <translation>既不是设计点，也不是复测或重复测量的成果。</translation>
    </message>
    <message>
        <source>Resurvey, repeat</source>
        <translation>复测、重复测量</translation>
    </message>
    <message>
        <source>A result with the resurvey code in its number, or with a number that begins with C.</source>
        <translation>点号含复测代码的成果；点号以 C 开头的成果。</translation>
    </message>
    <message>
        <source>First measurements</source>
        <translation>首次测量</translation>
    </message>
    <message>
        <source>Staked and not planned: all figures but those of points measured twice are of these.</source>
        <translation>已放样和设计外的成果：除测量两次的点外，所有指标都由其算得。</translation>
    </message>
    <message>
        <source>First measurements that pass every test of the quality check, by the limits above.</source>
        <translation>按上述限差通过质量检查全部项目的首次测量。</translation>
    </message>
    <message>
        <source>First measurements that fail a test. A value on its limit passes.</source>
        <translation>有项目未通过的首次测量；等于限差为合格。</translation>
    </message>
    <message>
        <source>First measurements that fail no test, but have no design position, or a value that is no number.</source>
        <translation>没有未通过的项目，但没有设计坐标或有的值不是数字的首次测量。</translation>
    </message>
    <message>
        <source>Within limits, of those within limits and over limit.</source>
        <translation>合格数占合格与超限之和的比例。</translation>
    </message>
    <message>
        <source>dE, dN, dH</source>
        <translation>dE、dN、dH</translation>
    </message>
    <message>
        <source>Measured minus design, in metres: to the east, to the north, upwards.</source>
        <translation>实测减设计，单位为米：向东、向北、向上。</translation>
    </message>
    <message>
        <source>2D</source>
        <translation>平面</translation>
    </message>
    <message>
        <source>The distance in the plane from the design, or between two measurements, in metres.</source>
        <translation>与设计位置或两次测量之间的平面距离，单位为米。</translation>
    </message>
    <message>
        <source>The sum by the number of values. A value that is no number is left out, here and below.</source>
        <translation>总和除以个数；此处及以下，不是数字的值不计入。</translation>
    </message>
    <message>
        <source>Standard deviation of a sample, about the mean, with n - 1.</source>
        <translation>样本标准差，相对平均值，以 n - 1 计算。</translation>
    </message>
    <message>
        <source>The root of the mean of the squares, with n.</source>
        <translation>平方平均值的平方根，以 n 计算。</translation>
    </message>
    <message>
        <source>By nearest rank: of n magnitudes in ascending order, number 0.95 n, rounded up.</source>
        <translation>最近秩法：n 个绝对值升序排列，取第 0.95 n（向上取整）个。</translation>
    </message>
    <message>
        <source>The value farthest from 0, with its sign.</source>
        <translation>离 0 最远的值，保留符号。</translation>
    </message>
    <message>
        <source>The differences whose mean is farther from 0 than 3 standard deviations / root of n, and than 0.02 m.</source>
        <translation>平均值的绝对值大于 3 倍标准差 / n 的平方根且大于 0.02 m 的差值。</translation>
    </message>
    <message>
        <source>RMS / root of 2</source>
        <translation>RMS / 2 的平方根</translation>
    </message>
    <message>
        <source>The precision of a single measurement, from the differences of two that are equally good.</source>
        <translation>由两次等精度测量之差求得的单次测量精度。</translation>
    </message>
    <message>
        <source>Second - first</source>
        <translation>再次－首次</translation>
    </message>
    <message>
        <source>Of points measured twice, the resurvey or repeat minus the first measurement.</source>
        <translation>测量两次的点：复测或重复测量减首次测量。</translation>
    </message>
    <message>
        <source>Beyond tolerance</source>
        <translation>复测超限</translation>
    </message>
    <message>
        <source>A resurvey whose difference is above re_north_diff, re_east_diff or re_elev_diff.</source>
        <translation>差值大于 re_north_diff、re_east_diff 或 re_elev_diff 的复测。</translation>
    </message>
    <message>
        <source>2D distances of first measurements; one on the end of a class belongs to it.</source>
        <translation>首次测量的平面距离；等于分级上限的计入该级。</translation>
    </message>
</context>
<context>
    <name>StatisticsTableModel</name>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>%1: %2 = %3</source>
        <translation>%1：%2 = %3</translation>
    </message>
    <message>
        <source>Click to go to this result</source>
        <translation>单击转到该成果</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>成果</translation>
    </message>
    <message>
        <source>All points are staked and within the limits</source>
        <translation>全部放样，且均在限差内</translation>
    </message>
    <message>
        <source>All results are within the limits</source>
        <translation>全部成果均在限差内</translation>
    </message>
</context>
<context>
    <name>StatisticsWindow</name>
    <message>
        <source>Groups</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>&amp;Group by</source>
        <translation>分组依据(&amp;G)</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>全部显示(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Save as CSV...</source>
        <translation>另存为 CSV(&amp;S)...</translation>
    </message>
    <message>
        <source>Write the rows as they are shown</source>
        <translation>按显示的样子写出各行</translation>
    </message>
    <message>
        <source>There is nothing to count yet. Import a design and survey results: drop their files here, or use the menu Exchange.</source>
        <translation>还没有可统计的数据。请导入设计和测量成果：把文件拖到这里，或使用“数据交换”菜单。</translation>
    </message>
    <message>
        <source>No project is open. Open one to see how good its results are.</source>
        <translation>没有打开的工程。打开一个工程，查看其成果的质量。</translation>
    </message>
    <message>
        <source>%1 results of the plot</source>
        <translation>图中的 %1 个成果</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Save Statistics</source>
        <translation>保存统计</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>行数：%1</translation>
    </message>
    <message>
        <source>Show all points again in the tables and in the plot (Esc)</source>
        <translation>在列表和图中重新显示全部点（Esc）</translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation>只显示%1</translation>
    </message>
</context>
<context>
    <name>StoredValueProblems</name>
    <message>
        <source>The solution is %1; it should be %2 or better.</source>
        <translation>解类型为%1，应为%2或更好。</translation>
    </message>
    <message>
        <source>The corrections were %1 old; at most %2 is allowed.</source>
        <translation>差分改正的龄期为 %1，最多允许 %2。</translation>
    </message>
    <message>
        <source>Epochs: %1; at least %2 are wanted.</source>
        <translation>历元数为 %1，至少应为 %2。</translation>
    </message>
    <message>
        <source>The result does not say how long its point was occupied; at least %1 is wanted.</source>
        <translation>该成果没有记录观测了多长时间，至少应为 %1。</translation>
    </message>
    <message>
        <source>The point was occupied for %1; at least %2 is wanted.</source>
        <translation>观测时间为 %1，至少应为 %2。</translation>
    </message>
    <message>
        <source>RMS %1 is over its limit %2.</source>
        <translation>RMS %1 超过限差 %2。</translation>
    </message>
</context>
<context>
    <name>SurveyColumns</name>
    <message>
        <source>line num</source>
        <translation>线号</translation>
    </message>
    <message>
        <source>point num</source>
        <translation>点号</translation>
    </message>
    <message>
        <source>point mark</source>
        <translation>点标识</translation>
    </message>
    <message>
        <source>latitude</source>
        <translation>纬度</translation>
    </message>
    <message>
        <source>longitude</source>
        <translation>经度</translation>
    </message>
    <message>
        <source>altitude</source>
        <translation>大地高</translation>
    </message>
    <message>
        <source>north</source>
        <translation>北坐标</translation>
    </message>
    <message>
        <source>east</source>
        <translation>东坐标</translation>
    </message>
    <message>
        <source>elevation</source>
        <translation>高程</translation>
    </message>
    <message>
        <source>antenna height</source>
        <translation>天线高</translation>
    </message>
    <message>
        <source>hor accu</source>
        <translation>水平精度</translation>
    </message>
    <message>
        <source>ver accu</source>
        <translation>垂直精度</translation>
    </message>
    <message>
        <source>sat num</source>
        <translation>卫星数</translation>
    </message>
    <message>
        <source>pdop</source>
        <translation>PDOP</translation>
    </message>
    <message>
        <source>hdop</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>vdop</source>
        <translation>VDOP</translation>
    </message>
    <message>
        <source>epoch num</source>
        <translation>历元数</translation>
    </message>
    <message>
        <source>ref north</source>
        <translation>基站北坐标</translation>
    </message>
    <message>
        <source>ref east</source>
        <translation>基站东坐标</translation>
    </message>
    <message>
        <source>ref lon</source>
        <translation>基站经度</translation>
    </message>
    <message>
        <source>ref lat</source>
        <translation>基站纬度</translation>
    </message>
    <message>
        <source>ref alt</source>
        <translation>基站大地高</translation>
    </message>
    <message>
        <source>ref dist</source>
        <translation>基站距离</translation>
    </message>
    <message>
        <source>time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>measure mode</source>
        <translation>测量模式</translation>
    </message>
    <message>
        <source>solution type</source>
        <translation>解类型</translation>
    </message>
    <message>
        <source>instru type</source>
        <translation>仪器型号</translation>
    </message>
    <message>
        <source>instru serial</source>
        <translation>仪器编号</translation>
    </message>
    <message>
        <source>quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>design north</source>
        <translation>设计北坐标</translation>
    </message>
    <message>
        <source>design east</source>
        <translation>设计东坐标</translation>
    </message>
    <message>
        <source>design elevation</source>
        <translation>设计高程</translation>
    </message>
    <message>
        <source>trans deviation</source>
        <translation>横向偏差</translation>
    </message>
    <message>
        <source>longi deviation</source>
        <translation>纵向偏差</translation>
    </message>
    <message>
        <source>rms</source>
        <translation>RMS</translation>
    </message>
    <message>
        <source>surveyor</source>
        <translation>测量员</translation>
    </message>
    <message>
        <source>remarks</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>obstacle</source>
        <translation>障碍物</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>resurvey</source>
        <translation>复测</translation>
    </message>
    <message>
        <source>resurvey x diff</source>
        <translation>复测北差</translation>
    </message>
    <message>
        <source>resurvey y diff</source>
        <translation>复测东差</translation>
    </message>
    <message>
        <source>resurvey h diff</source>
        <translation>复测高差</translation>
    </message>
    <message>
        <source>sea height</source>
        <translation>海拔高</translation>
    </message>
    <message>
        <source>age of diff</source>
        <translation>差分龄期</translation>
    </message>
    <message>
        <source>sat detail</source>
        <translation>卫星详情</translation>
    </message>
    <message>
        <source>start time</source>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>end time</source>
        <translation>结束时间</translation>
    </message>
    <message>
        <source>raw offset</source>
        <translation>原始数据偏移</translation>
    </message>
    <message>
        <source>base_station_id</source>
        <translation>base_station_id</translation>
    </message>
</context>
<context>
    <name>SurveyCsv</name>
    <message>
        <source>The point has no number.</source>
        <translation>该点没有点号。</translation>
    </message>
    <message>
        <source>Import Survey Data</source>
        <translation>正在导入测量数据</translation>
    </message>
    <message>
        <source>Export Survey Data</source>
        <translation>正在导出测量数据</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; cannot be read.</source>
        <translation>%1“%2”无法识别。</translation>
    </message>
    <message>
        <source>The heading is that of a design file, whose points were taken as results. Design points have an import of their own.</source>
        <translation>列标题是设计文件的，其中的点被当作测量成果读入。设计点另有专门的导入。</translation>
    </message>
    <message>
        <source>Columns that are not read: %1: %2.</source>
        <translation>未读取的列 %1 个：%2。</translation>
    </message>
    <message>
        <source>The last fields are missing.</source>
        <translation>缺少末尾的字段。</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is no time such as 2024/12/31 23:59:59.</source>
        <translation>%1“%2”不是形如 2024/12/31 23:59:59 的时间。</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is taken for &quot;%3&quot;.</source>
        <translation>%1“%2”按“%3”处理。</translation>
    </message>
    <message>
        <source>The columns of exported files lack the line number or the point number. Choose them at View &gt; Survey Columns.</source>
        <translation>导出的列中缺少线号或点号。请在“视图 &gt; 测量列表列”中选择。</translation>
    </message>
</context>
<context>
    <name>SurveyDataControl</name>
    <message>
        <source>Results: %1</source>
        <translation>测量成果：%1</translation>
    </message>
    <message>
        <source>Point number</source>
        <translation>点号</translation>
    </message>
    <message>
        <source>A point number whose first four characters are its line, such as 10051234 or C10051234.</source>
        <translation>前四个字符为测线号的点号，例如 10051234 或 C10051234。</translation>
    </message>
    <message>
        <source>survey data (%1)</source>
        <translation>测量数据 (%1)</translation>
    </message>
    <message>
        <source>Export Selected</source>
        <translation>导出所选</translation>
    </message>
    <message>
        <source>Export Selected Kml</source>
        <translation>导出所选为 KML</translation>
    </message>
    <message>
        <source>Delete Line</source>
        <translation>删除测线</translation>
    </message>
    <message>
        <source>Export All</source>
        <translation>导出全部</translation>
    </message>
    <message>
        <source>Export All Kml</source>
        <translation>导出全部为 KML</translation>
    </message>
    <message>
        <source>Import Csv</source>
        <translation>导入 CSV</translation>
    </message>
    <message>
        <source>Import DB</source>
        <translation>导入数据库</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Are you sure to delete these records?</source>
        <translation>确定要删除这些记录吗？</translation>
    </message>
    <message>
        <source>Lines: %1, results: %2. The next save takes them out of the project&apos;s files, too.</source>
        <translation>测线：%1，测量成果：%2。下次保存时，它们也会从工程文件中删除。</translation>
    </message>
</context>
<context>
    <name>SurveyDataTable</name>
    <message>
        <source>modify</source>
        <translation>修改</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Export Selected Survey Point</source>
        <translation>导出选中的测量点</translation>
    </message>
    <message>
        <source>The project has no survey results yet.</source>
        <translation>工程中还没有测量成果。</translation>
    </message>
    <message>
        <source>No line is shown. &lt;a href=&quot;#&quot;&gt;Show all lines&lt;/a&gt;</source>
        <translation>没有显示测线。&lt;a href=&quot;#&quot;&gt;显示所有测线&lt;/a&gt;</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Are you sure to delete these records?</source>
        <translation>确定要删除这些记录吗？</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>记录数：%1</translation>
    </message>
</context>
<context>
    <name>SurveyDatabase</name>
    <message>
        <source>Saving that project was interrupted. The results are those that were saved before.</source>
        <translation>那个工程的保存曾被中断。成果是此前保存的。</translation>
    </message>
    <message>
        <source>%1 (%2, there %3)</source>
        <translation>%1（本工程 %2，对方 %3）</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>另有 %1 项</translation>
    </message>
    <message>
        <source>The results of &quot;%1&quot; were not imported: their coordinate system is not the project&apos;s. It differs in %2.</source>
        <translation>“%1”的成果没有导入：其坐标系统与本工程不同。不同的参数：%2。</translation>
    </message>
</context>
<context>
    <name>SurveyHeaderMenu</name>
    <message>
        <source>Hide This Column</source>
        <translation>隐藏此列</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Survey Columns...</source>
        <translation>测量列表列...</translation>
    </message>
</context>
<context>
    <name>SurveyHeadings</name>
    <message>
        <source>&quot;%1&quot; must be written &quot;%2&quot;.</source>
        <translation>“%1”应写作“%2”。</translation>
    </message>
    <message>
        <source>Line %1 is: %2</source>
        <translation>第 %1 行为：%2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>No line holds the captions of line number and point number: %1.</source>
        <translation>没有任何一行含有线号和点号的列标题：%1。</translation>
    </message>
    <message>
        <source>, or </source>
        <translation>，或 </translation>
    </message>
    <message>
        <source>It is the heading of a design file. Import it as design points.</source>
        <translation>它是设计文件的列标题。请作为设计数据导入。</translation>
    </message>
    <message>
        <source>Line %1 is no heading. %2</source>
        <translation>第 %1 行不是列标题。%2</translation>
    </message>
    <message>
        <source>The captions stand in quotes.</source>
        <translation>列标题带有引号。</translation>
    </message>
    <message>
        <source>It lacks the caption %1.</source>
        <translation>它缺少列标题 %1。</translation>
    </message>
</context>
<context>
    <name>SurveyResultsReport</name>
    <message>
        <source>Results</source>
        <translation>成果</translation>
    </message>
    <message>
        <source>Not staked</source>
        <translation>未放样</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线号</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点号</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>North</source>
        <translation>北坐标</translation>
    </message>
    <message>
        <source>East</source>
        <translation>东坐标</translation>
    </message>
    <message>
        <source>Elevation (m)</source>
        <translation>高程 (m)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Distance (m)</source>
        <translation>距离 (m)</translation>
    </message>
    <message>
        <source>Bearing (%1)</source>
        <translation>方位角 (%1)</translation>
    </message>
    <message>
        <source>dN (m)</source>
        <translation>dN (m)</translation>
    </message>
    <message>
        <source>dE (m)</source>
        <translation>dE (m)</translation>
    </message>
    <message>
        <source>dH (m)</source>
        <translation>dH (m)</translation>
    </message>
    <message>
        <source>Obstacle</source>
        <translation>障碍物</translation>
    </message>
    <message>
        <source>Surveyor</source>
        <translation>测量员</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Design north</source>
        <translation>设计北坐标</translation>
    </message>
    <message>
        <source>Design east</source>
        <translation>设计东坐标</translation>
    </message>
    <message>
        <source>Design elevation (m)</source>
        <translation>设计高程 (m)</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>偏移</translation>
    </message>
    <message>
        <source>These results have no design position, or their position is no number.</source>
        <translation>这些成果没有设计坐标，或者其坐标不是数字。</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点数</translation>
    </message>
    <message>
        <source>Design points</source>
        <translation>设计点</translation>
    </message>
    <message>
        <source>Staked</source>
        <translation>已放样</translation>
    </message>
    <message>
        <source>Staked (%)</source>
        <translation>放样率 (%)</translation>
    </message>
    <message>
        <source>Farther than the limit</source>
        <translation>超出限差</translation>
    </message>
    <message>
        <source>Farther (%)</source>
        <translation>超限率 (%)</translation>
    </message>
    <message>
        <source>Receivers</source>
        <translation>接收点</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>激发点</translation>
    </message>
    <message>
        <source>All</source>
        <translation>合计</translation>
    </message>
    <message>
        <source>A design point counts as staked whenever and by whomever it was staked; results are those of the period and surveyors above.</source>
        <translation>设计点无论何时由何人放样均计为已放样；成果仅限上述时段和测量员。</translation>
    </message>
    <message>
        <source>Farthest from the design</source>
        <translation>偏离设计最远的点</translation>
    </message>
    <message>
        <source>Points farther than the limit, by obstacle</source>
        <translation>偏移超限的点（按障碍物）</translation>
    </message>
    <message>
        <source>none given</source>
        <translation>未注明</translation>
    </message>
    <message>
        <source>Design points without a result of the same line and point number.</source>
        <translation>没有相同线号和点号成果的设计点。</translation>
    </message>
    <message>
        <source>dN, dE, dH</source>
        <translation>dN、dE、dH</translation>
    </message>
    <message>
        <source>Measured minus design, in metres: to the north, to the east, upwards.</source>
        <translation>实测减设计，单位为米：向北、向东、向上。</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>距离</translation>
    </message>
    <message>
        <source>In the plane from the design to the measured position, in metres; red when it is above the limit design_hor_diff.</source>
        <translation>设计位置到实测位置的平面距离，单位为米；大于限差 design_hor_diff 时为红色。</translation>
    </message>
    <message>
        <source>Bearing</source>
        <translation>方位角</translation>
    </message>
    <message>
        <source>The direction from the design to the measured position, in degrees clockwise from grid north.</source>
        <translation>从设计位置到实测位置的方向，自坐标北顺时针量取，单位为度。</translation>
    </message>
    <message>
        <source>Results: %1, design points not staked: %2, farther from the design than the limit: %3.</source>
        <translation>成果：%1，未放样的设计点：%2，偏离设计超出限差：%3。</translation>
    </message>
</context>
<context>
    <name>SurveyTable</name>
    <message>
        <source>base id</source>
        <translation>基站号</translation>
    </message>
</context>
<context>
    <name>TableCountLine</name>
    <message>
        <source>Clear All Filters</source>
        <translation>清除所有筛选</translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>已选：%1</translation>
    </message>
</context>
<context>
    <name>TileCache</name>
    <message>
        <source>%1 tiles in &quot;%2&quot; cannot be removed.</source>
        <translation>“%2”中有 %1 个瓦片无法删除。</translation>
    </message>
</context>
<context>
    <name>TileImage</name>
    <message>
        <source>The base map &quot;%1&quot; has no tiles here.</source>
        <translation>底图“%1”在此处没有瓦片。</translation>
    </message>
    <message>
        <source>The base map &quot;%1&quot; cannot be read: %2</source>
        <translation>无法读取底图“%1”：%2</translation>
    </message>
    <message>
        <source>The base map &quot;%1&quot; cannot be reached, %2 does not answer; it is tried again.</source>
        <translation>无法连接底图“%1”，%2 没有应答；将自动重试。</translation>
    </message>
    <message>
        <source>%2 refuses the tiles of the base map &quot;%1&quot; (HTTP status %3); it is tried again.</source>
        <translation>%2 拒绝提供底图“%1”的瓦片（HTTP 状态 %3）；将自动重试。</translation>
    </message>
    <message>
        <source>%2 answers with errors instead of tiles of the base map &quot;%1&quot;; it is tried again.</source>
        <translation>%2 返回的是错误，而不是底图“%1”的瓦片；将自动重试。</translation>
    </message>
</context>
<context>
    <name>TimeZomeDlg</name>
    <message>
        <source>北京时间</source>
        <translation>北京时间</translation>
    </message>
    <message>
        <source>自定义时区</source>
        <translation>自定义时区</translation>
    </message>
    <message>
        <source>时区修改</source>
        <translation>时区修改</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>UndoCommand</name>
    <message>
        <source>Undo %1</source>
        <translation>撤销 %1</translation>
    </message>
</context>
<context>
    <name>VerdictClasses</name>
    <message>
        <source>within all limits: %1</source>
        <translation>全部合格：%1</translation>
    </message>
    <message>
        <source>over a limit: %1</source>
        <translation>超限：%1</translation>
    </message>
    <message>
        <source>not judged: %1</source>
        <translation>未判定：%1</translation>
    </message>
</context>
</TS>
