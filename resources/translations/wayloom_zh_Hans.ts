<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_Hans" sourcelanguage="en">
<context>
    <name>Wayloom</name>
    <message>
        <source>%1 added, %2 were there before</source>
        <translation>已添加 %1 个，%2 个原已存在</translation>
    </message>
    <message>
        <source>%1 exported</source>
        <translation>已导出 %1 个</translation>
    </message>
    <message>
        <source>%1 exported, %2 without a position left out</source>
        <translation>已导出 %1 个，略去 %2 个没有位置的</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 小时 %2 分钟</translation>
    </message>
    <message>
        <source>%1 is damaged and counts as empty</source>
        <translation>%1 已损坏，按空文件处理</translation>
    </message>
    <message>
        <source>%1 km</source>
        <translation>%1 公里</translation>
    </message>
    <message>
        <source>%1 km/h</source>
        <translation>%1 公里/小时</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 米</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>%1 of %2 ticked</source>
        <translation>已勾选 %1 / %2</translation>
    </message>
    <message>
        <source>Add To →</source>
        <translation>收藏 →</translation>
    </message>
    <message>
        <source>Added to favorites: %1</source>
        <translation>已添加到收藏夹：%1</translation>
    </message>
    <message>
        <source>Address is loading, please wait</source>
        <translation>正在获取地址，请稍候</translation>
    </message>
    <message>
        <source>Applications that are installed on this device appear here.</source>
        <translation>此设备上已安装的应用会显示在这里。</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>已到达</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Both are on: turn the position or the drive off</source>
        <translation>两者都已开启：请关闭位置或行程</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Contact Author</source>
        <translation>联系作者</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Copy coordinates</source>
        <translation>复制坐标</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>国家</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Deleted “%1”</source>
        <translation>已删除“%1”</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Drift speed</source>
        <translation>漂移速度</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>行程</translation>
    </message>
    <message>
        <source>Drive: %1, %2</source>
        <translation>行程：%1，%2</translation>
    </message>
    <message>
        <source>Drive: %1, %2; you gave %3, %4</source>
        <translation>行程：%1，%2；您给定 %3，%4</translation>
    </message>
    <message>
        <source>Driving: %1 %, %2 left, arrives %3</source>
        <translation>行驶中：%1 %，还剩 %2，%3 到达</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>End</source>
        <translation>终点</translation>
    </message>
    <message>
        <source>End here</source>
        <translation>到这里结束</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>结束时间</translation>
    </message>
    <message>
        <source>End Time must later than Start Time</source>
        <translation>结束时间必须晚于开始时间</translation>
    </message>
    <message>
        <source>Enter Address Here</source>
        <translation>请输入地址</translation>
    </message>
    <message>
        <source>Export favorites to a file</source>
        <translation>将收藏导出到文件</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>收藏夹</translation>
    </message>
    <message>
        <source>Find an application</source>
        <translation>查找应用</translation>
    </message>
    <message>
        <source>Fixed location</source>
        <translation>固定位置</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>删除记录</translation>
    </message>
    <message>
        <source>Forget recent searches</source>
        <translation>清除最近的搜索</translation>
    </message>
    <message>
        <source>Hide the choices</source>
        <translation>隐藏选项</translation>
    </message>
    <message>
        <source>House</source>
        <translation>门牌</translation>
    </message>
    <message>
        <source>Import favorites from a file</source>
        <translation>从文件导入收藏</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>导入…</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>It was changed elsewhere meanwhile</source>
        <translation>期间已在别处被更改</translation>
    </message>
    <message>
        <source>Keep the ticks as they are under a name, and take them back later.</source>
        <translation>为当前的勾选命名保存，以后可以恢复。</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>Moved “%1”</source>
        <translation>已移动“%1”</translation>
    </message>
    <message>
        <source>My location</source>
        <translation>我的位置</translation>
    </message>
    <message>
        <source>Name of the set</source>
        <translation>组合名称</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>未找到应用</translation>
    </message>
    <message>
        <source>No favorites yet</source>
        <translation>还没有收藏</translation>
    </message>
    <message>
        <source>No roads lead from %1 to %2</source>
        <translation>没有道路从%1通往%2</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Nothing found for %1: the position is off</source>
        <translation>未找到%1：位置已关闭</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>好</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>On</source>
        <translation>已开启</translation>
    </message>
    <message>
        <source>On at %1</source>
        <translation>已开启：%1</translation>
    </message>
    <message>
        <source>On at a position that is not on the globe</source>
        <translation>已开启：位置不在地球上</translation>
    </message>
    <message>
        <source>Path planning failure, rechoose Start/End please</source>
        <translation>路径规划失败，请重新选择起点或终点</translation>
    </message>
    <message>
        <source>Pick a place on the map and press “Add To →”.</source>
        <translation>在地图上选择一个位置，然后点按“收藏 →”。</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>地点</translation>
    </message>
    <message>
        <source>Please Enter Favorites Name</source>
        <translation>请输入收藏名称</translation>
    </message>
    <message>
        <source>Please choose</source>
        <translation>请选择</translation>
    </message>
    <message>
        <source>Please choose End</source>
        <translation>请选择终点</translation>
    </message>
    <message>
        <source>Please choose End Time</source>
        <translation>请选择结束时间</translation>
    </message>
    <message>
        <source>Please choose Start</source>
        <translation>请选择起点</translation>
    </message>
    <message>
        <source>Please choose Start Time</source>
        <translation>请选择开始时间</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>坐标</translation>
    </message>
    <message>
        <source>Postcode</source>
        <translation>邮政编码</translation>
    </message>
    <message>
        <source>Province</source>
        <translation>省/州</translation>
    </message>
    <message>
        <source>Put the pin here</source>
        <translation>将图钉放在这里</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as favorite</source>
        <translation>保存到收藏夹</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search Failed</source>
        <translation>搜索失败</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>正在搜索</translation>
    </message>
    <message>
        <source>Searching …</source>
        <translation>正在搜索…</translation>
    </message>
    <message>
        <source>Sets</source>
        <translation>组合</translation>
    </message>
    <message>
        <source>Show the choices</source>
        <translation>显示选项</translation>
    </message>
    <message>
        <source>Spotloom is working,please turn off the Spotloom first!</source>
        <translation>定点正在运行，请先关闭！</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>起点</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>从这里出发</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>Starts %1, arrives %2</source>
        <translation>%1 出发，%2 到达</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>街道</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>建议</translation>
    </message>
    <message>
        <source>Switch mode</source>
        <translation>切换模式</translation>
    </message>
    <message>
        <source>The drive ends before it starts</source>
        <translation>行程的结束早于开始</translation>
    </message>
    <message>
        <source>The drive has no path</source>
        <translation>行程没有路线</translation>
    </message>
    <message>
        <source>Ticked only</source>
        <translation>仅已勾选</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Touch again: there was no settings file yet</source>
        <translation>请再点一次：之前没有设置文件</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>城镇</translation>
    </message>
    <message>
        <source>Turn on the switch will change your coordinate automatic in a range</source>
        <translation>打开开关后，坐标会在一定范围内自动变化</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Unknow</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Visit Quorvil</source>
        <translation>访问 Quorvil</translation>
    </message>
    <message>
        <source>Wayloom</source>
        <translation>Wayloom</translation>
    </message>
    <message>
        <source>Wayloom is working</source>
        <translation>Wayloom 正在运行</translation>
    </message>
    <message>
        <source>Wayloom is working,please turn off the Wayloom first!</source>
        <translation>行程正在运行，请先关闭！</translation>
    </message>
    <message>
        <source>White List</source>
        <translation>白名单</translation>
    </message>
    <message>
        <source>fast</source>
        <translation>快</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>慢</translation>
    </message>
    <message>
        <source>定位服务未开启</source>
        <translation>定位服务未开启</translation>
    </message>
    <message>
        <source>定位失败</source>
        <translation>定位失败</translation>
    </message>
    <message>
        <source>请开启定位以保证程序正常运行</source>
        <translation>请开启定位以保证程序正常运行</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>yyyy年M月d日</translation>
    </message>
    <message>
        <source>ddd d MMM</source>
        <translation>M月d日 ddd</translation>
    </message>
</context>
</TS>
