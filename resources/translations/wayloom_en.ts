<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Wayloom</name>
    <message>
        <source>定位服务未开启</source>
        <translation>Location services are switched off</translation>
    </message>
    <message>
        <source>定位失败</source>
        <translation>Location failed</translation>
    </message>
    <message>
        <source>请开启定位以保证程序正常运行</source>
        <translation>Please allow access to your location so that the application can work properly</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
