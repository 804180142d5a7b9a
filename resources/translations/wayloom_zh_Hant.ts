<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_Hant" sourcelanguage="en">
<context>
    <name>Wayloom</name>
    <message>
        <source>%1 added, %2 were there before</source>
        <translation>已加入 %1 個，%2 個原已存在</translation>
    </message>
    <message>
        <source>%1 exported</source>
        <translation>已匯出 %1 個</translation>
    </message>
    <message>
        <source>%1 exported, %2 without a position left out</source>
        <translation>已匯出 %1 個，略去 %2 個沒有位置的</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 小時 %2 分鐘</translation>
    </message>
    <message>
        <source>%1 is damaged and counts as empty</source>
        <translation>%1 已損壞，視為空檔</translation>
    </message>
    <message>
        <source>%1 km</source>
        <translation>%1 公里</translation>
    </message>
    <message>
        <source>%1 km/h</source>
        <translation>%1 公里/小時</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 公尺</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分鐘</translation>
    </message>
    <message>
        <source>%1 of %2 ticked</source>
        <translation>已勾選 %1 / %2</translation>
    </message>
    <message>
        <source>Add To →</source>
        <translation>收藏 →</translation>
    </message>
    <message>
        <source>Added to favorites: %1</source>
        <translation>已加入收藏夾：%1</translation>
    </message>
    <message>
        <source>Address is loading, please wait</source>
        <translation>正在取得地址，請稍候</translation>
    </message>
    <message>
        <source>Applications that are installed on this device appear here.</source>
        <translation>此裝置上已安裝的應用程式會顯示在這裡。</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>已抵達</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Both are on: turn the position or the drive off</source>
        <translation>兩者都已開啟：請關閉位置或行程</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Contact Author</source>
        <translation>聯絡作者</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已複製</translation>
    </message>
    <message>
        <source>Copy coordinates</source>
        <translation>複製座標</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>國家</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Deleted “%1”</source>
        <translation>已刪除「%1」</translation>
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
        <translation>行程：%1，%2；您給定 %3，%4</translation>
    </message>
    <message>
        <source>Driving: %1 %, %2 left, arrives %3</source>
        <translation>行駛中：%1 %，還剩 %2，%3 抵達</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>End</source>
        <translation>終點</translation>
    </message>
    <message>
        <source>End here</source>
        <translation>到這裡結束</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>結束時間</translation>
    </message>
    <message>
        <source>End Time must later than Start Time</source>
        <translation>結束時間必須晚於開始時間</translation>
    </message>
    <message>
        <source>Enter Address Here</source>
        <translation>請輸入地址</translation>
    </message>
    <message>
        <source>Export favorites to a file</source>
        <translation>將收藏匯出到檔案</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>匯出…</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>我的最愛</translation>
    </message>
    <message>
        <source>Find an application</source>
        <translation>尋找應用程式</translation>
    </message>
    <message>
        <source>Fixed location</source>
        <translation>固定位置</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>刪除記錄</translation>
    </message>
    <message>
        <source>Forget recent searches</source>
        <translation>清除最近的搜尋</translation>
    </message>
    <message>
        <source>Hide the choices</source>
        <translation>隱藏選項</translation>
    </message>
    <message>
        <source>House</source>
        <translation>門牌</translation>
    </message>
    <message>
        <source>Import favorites from a file</source>
        <translation>從檔案匯入收藏</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>匯入…</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>It was changed elsewhere meanwhile</source>
        <translation>期間已在別處被更改</translation>
    </message>
    <message>
        <source>Keep the ticks as they are under a name, and take them back later.</source>
        <translation>為目前的勾選命名儲存，以後可以恢復。</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地圖</translation>
    </message>
    <message>
        <source>Moved “%1”</source>
        <translation>已移動「%1」</translation>
    </message>
    <message>
        <source>My location</source>
        <translation>我的位置</translation>
    </message>
    <message>
        <source>Name of the set</source>
        <translation>組合名稱</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>找不到應用程式</translation>
    </message>
    <message>
        <source>No favorites yet</source>
        <translation>尚無收藏</translation>
    </message>
    <message>
        <source>No roads lead from %1 to %2</source>
        <translation>沒有道路從%1通往%2</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>找不到</translation>
    </message>
    <message>
        <source>Nothing found for %1: the position is off</source>
        <translation>找不到%1：位置已關閉</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>好</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>On</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>On at %1</source>
        <translation>已開啟：%1</translation>
    </message>
    <message>
        <source>On at a position that is not on the globe</source>
        <translation>已開啟：位置不在地球上</translation>
    </message>
    <message>
        <source>Path planning failure, rechoose Start/End please</source>
        <translation>路徑規劃失敗，請重新選擇起點或終點</translation>
    </message>
    <message>
        <source>Pick a place on the map and press “Add To →”.</source>
        <translation>在地圖上選擇一個位置，然後點一下「收藏 →」。</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>地點</translation>
    </message>
    <message>
        <source>Please Enter Favorites Name</source>
        <translation>請輸入收藏名稱</translation>
    </message>
    <message>
        <source>Please choose</source>
        <translation>請選擇</translation>
    </message>
    <message>
        <source>Please choose End</source>
        <translation>請選擇終點</translation>
    </message>
    <message>
        <source>Please choose End Time</source>
        <translation>請選擇結束時間</translation>
    </message>
    <message>
        <source>Please choose Start</source>
        <translation>請選擇起點</translation>
    </message>
    <message>
        <source>Please choose Start Time</source>
        <translation>請選擇開始時間</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>座標</translation>
    </message>
    <message>
        <source>Postcode</source>
        <translation>郵遞區號</translation>
    </message>
    <message>
        <source>Province</source>
        <translation>省/州</translation>
    </message>
    <message>
        <source>Put the pin here</source>
        <translation>將圖釘放在這裡</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Save as favorite</source>
        <translation>儲存到收藏夾</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>Search Failed</source>
        <translation>搜尋失敗</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>搜尋中</translation>
    </message>
    <message>
        <source>Searching …</source>
        <translation>正在搜尋…</translation>
    </message>
    <message>
        <source>Sets</source>
        <translation>組合</translation>
    </message>
    <message>
        <source>Show the choices</source>
        <translation>顯示選項</translation>
    </message>
    <message>
        <source>Spotloom is working,please turn off the Spotloom first!</source>
        <translation>定點正在執行，請先關閉！</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>起點</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>從這裡出發</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>開始時間</translation>
    </message>
    <message>
        <source>Starts %1, arrives %2</source>
        <translation>%1 出發，%2 抵達</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>街道</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>建議</translation>
    </message>
    <message>
        <source>Switch mode</source>
        <translation>切換模式</translation>
    </message>
    <message>
        <source>The drive ends before it starts</source>
        <translation>行程的結束早於開始</translation>
    </message>
    <message>
        <source>The drive has no path</source>
        <translation>行程沒有路線</translation>
    </message>
    <message>
        <source>Ticked only</source>
        <translation>僅已勾選</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Touch again: there was no settings file yet</source>
        <translation>請再點一次：之前沒有設定檔</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>城鎮</translation>
    </message>
    <message>
        <source>Turn on the switch will change your coordinate automatic in a range</source>
        <translation>開啟後，座標會在一定範圍內自動變化</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>Unknow</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Visit Quorvil</source>
        <translation>造訪 Quorvil</translation>
    </message>
    <message>
        <source>Wayloom</source>
        <translation>Wayloom</translation>
    </message>
    <message>
        <source>Wayloom is working</source>
        <translation>Wayloom 執行中</translation>
    </message>
    <message>
        <source>Wayloom is working,please turn off the Wayloom first!</source>
        <translation>行程正在執行，請先關閉！</translation>
    </message>
    <message>
        <source>White List</source>
        <translation>白名單</translation>
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
        <translation>定位服務未開啟</translation>
    </message>
    <message>
        <source>定位失败</source>
        <translation>定位失敗</translation>
    </message>
    <message>
        <source>请开启定位以保证程序正常运行</source>
        <translation>請開啟定位以確保程式正常運作</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>確定</translation>
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
