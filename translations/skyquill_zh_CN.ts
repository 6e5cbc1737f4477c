<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Applicationx</name>
    <message>
        <source>Skyquill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The window layout &quot;%1&quot; cannot be read (%2). The program starts with the map alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stake-out data of land seismic surveys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the CPU time to the shown window, and leave.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;, and leave.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataProcessDataManager</name>
    <message>
        <source>Loading Database</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrameCommands</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The change takes effect at the next start.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
