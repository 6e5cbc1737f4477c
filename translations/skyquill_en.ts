<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>CountAzimuthDlg</name>
    <message>
        <source>度分秒(dd.mmss)</source>
        <translation>Degrees, minutes, seconds (dd.mmss)</translation>
    </message>
    <message>
        <source>度(ddd.dddddd)</source>
        <translation>Degrees (ddd.dddddd)</translation>
    </message>
    <message>
        <source>米</source>
        <translation>m</translation>
    </message>
</context>
<context>
    <name>DataProcess5Assistant</name>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>是否退出程序？</source>
        <translation>Exit the program?</translation>
    </message>
</context>
<context>
    <name>DlgDesignLine</name>
    <message>
        <source>注意</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>步长禁止输入0。</source>
        <translation>A step of 0 is not allowed.</translation>
    </message>
</context>
<context>
    <name>DlgQCParamSet</name>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>请确认输入的复测代码是不为&apos; C &apos;的单个字母</source>
        <translation>The resurvey code must be a single letter other than C.</translation>
    </message>
</context>
<context>
    <name>TimeZomeDlg</name>
    <message>
        <source>北京时间</source>
        <translation>Beijing time (UTC+8)</translation>
    </message>
    <message>
        <source>自定义时区</source>
        <translation>Other time zone</translation>
    </message>
    <message>
        <source>时区修改</source>
        <translation>Time Zone</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
</TS>
