<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Applicationx</name>
    <message>
        <source>Skyquill</source>
        <translation>Skyquill</translation>
    </message>
    <message>
        <source>Stake-out data of land seismic surveys</source>
        <translation>陆地地震勘探放样数据处理</translation>
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
        <source>The window layout &quot;%1&quot; cannot be read (%2). The program has started with the map alone.</source>
        <translation>无法读取窗口布局“%1”（%2）。程序已启动，只有地图窗口。</translation>
    </message>
    <message>
        <source>List the components that a window layout can name, and leave.</source>
        <translation>列出窗口布局可用的组件，然后退出。</translation>
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
    <name>DataProcessDataManager</name>
    <message>
        <source>Loading Database</source>
        <translation>正在加载数据库</translation>
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
    <message>
        <source>Stake-out data of land seismic surveys</source>
        <translation>陆地地震勘探放样数据处理</translation>
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
</TS>
