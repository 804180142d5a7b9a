<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Wayloom</name>
    <message>
        <source>%1 added, %2 were there before</source>
        <translation>%1 件を追加、%2 件は登録済み</translation>
    </message>
    <message>
        <source>%1 exported</source>
        <translation>%1 件を書き出しました</translation>
    </message>
    <message>
        <source>%1 exported, %2 without a position left out</source>
        <translation>%1 件を書き出し、位置のない %2 件を省きました</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 時間 %2 分</translation>
    </message>
    <message>
        <source>%1 is damaged and counts as empty</source>
        <translation>%1 は破損しており、空とみなされます</translation>
    </message>
    <message>
        <source>%1 km</source>
        <translation>%1 km</translation>
    </message>
    <message>
        <source>%1 km/h</source>
        <translation>%1 km/h</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 of %2 ticked</source>
        <translation>%2 件中 %1 件選択</translation>
    </message>
    <message>
        <source>Add To →</source>
        <translation>追加 →</translation>
    </message>
    <message>
        <source>Added to favorites: %1</source>
        <translation>お気に入りに追加しました：%1</translation>
    </message>
    <message>
        <source>Address is loading, please wait</source>
        <translation>住所を読み込んでいます。お待ちください</translation>
    </message>
    <message>
        <source>Applications that are installed on this device appear here.</source>
        <translation>このデバイスにインストールされているアプリがここに表示されます。</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>到着しました</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Both are on: turn the position or the drive off</source>
        <translation>両方がオンです：位置か走行をオフにしてください</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Contact Author</source>
        <translation>作者に連絡</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>コピーしました</translation>
    </message>
    <message>
        <source>Copy coordinates</source>
        <translation>座標をコピー</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>国</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Deleted “%1”</source>
        <translation>「%1」を削除しました</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Drift speed</source>
        <translation>漂う速さ</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>走行</translation>
    </message>
    <message>
        <source>Drive: %1, %2</source>
        <translation>ルート：%1、%2</translation>
    </message>
    <message>
        <source>Drive: %1, %2; you gave %3, %4</source>
        <translation>ルート：%1、%2（指定 %3、%4）</translation>
    </message>
    <message>
        <source>Driving: %1 %, %2 left, arrives %3</source>
        <translation>走行中：%1 %、残り %2、到着 %3</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>End</source>
        <translation>終点</translation>
    </message>
    <message>
        <source>End here</source>
        <translation>ここを目的地にする</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>終了時刻</translation>
    </message>
    <message>
        <source>End Time must later than Start Time</source>
        <translation>終了時刻は開始時刻より後にしてください</translation>
    </message>
    <message>
        <source>Enter Address Here</source>
        <translation>住所を入力</translation>
    </message>
    <message>
        <source>Export favorites to a file</source>
        <translation>お気に入りをファイルに書き出す</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>書き出す…</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Find an application</source>
        <translation>アプリを検索</translation>
    </message>
    <message>
        <source>Fixed location</source>
        <translation>固定位置</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>履歴から削除</translation>
    </message>
    <message>
        <source>Forget recent searches</source>
        <translation>最近の検索を消去</translation>
    </message>
    <message>
        <source>Hide the choices</source>
        <translation>選択項目を隠す</translation>
    </message>
    <message>
        <source>House</source>
        <translation>番地</translation>
    </message>
    <message>
        <source>Import favorites from a file</source>
        <translation>お気に入りをファイルから読み込む</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>読み込む…</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>It was changed elsewhere meanwhile</source>
        <translation>その間に別の場所で変更されました</translation>
    </message>
    <message>
        <source>Keep the ticks as they are under a name, and take them back later.</source>
        <translation>今の選択に名前を付けて保存し、後で元に戻せます。</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地図</translation>
    </message>
    <message>
        <source>Moved “%1”</source>
        <translation>「%1」を移動しました</translation>
    </message>
    <message>
        <source>My location</source>
        <translation>現在地</translation>
    </message>
    <message>
        <source>Name of the set</source>
        <translation>セットの名前</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>アプリが見つかりません</translation>
    </message>
    <message>
        <source>No favorites yet</source>
        <translation>お気に入りはまだありません</translation>
    </message>
    <message>
        <source>No roads lead from %1 to %2</source>
        <translation>%1 から %2 への道はありません</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Nothing found for %1: the position is off</source>
        <translation>%1 は見つかりません：位置はオフです</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>On at %1</source>
        <translation>オン：%1</translation>
    </message>
    <message>
        <source>On at a position that is not on the globe</source>
        <translation>オン：地球上にない位置です</translation>
    </message>
    <message>
        <source>Path planning failure, rechoose Start/End please</source>
        <translation>経路が見つかりません。起点または終点を選び直してください</translation>
    </message>
    <message>
        <source>Pick a place on the map and press “Add To →”.</source>
        <translation>地図で場所を選び、「追加 →」を押してください。</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>地点</translation>
    </message>
    <message>
        <source>Please Enter Favorites Name</source>
        <translation>お気に入りの名前</translation>
    </message>
    <message>
        <source>Please choose</source>
        <translation>選択してください</translation>
    </message>
    <message>
        <source>Please choose End</source>
        <translation>終点を選んでください</translation>
    </message>
    <message>
        <source>Please choose End Time</source>
        <translation>終了時刻を選んでください</translation>
    </message>
    <message>
        <source>Please choose Start</source>
        <translation>起点を選んでください</translation>
    </message>
    <message>
        <source>Please choose Start Time</source>
        <translation>開始時刻を選んでください</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>座標</translation>
    </message>
    <message>
        <source>Postcode</source>
        <translation>郵便番号</translation>
    </message>
    <message>
        <source>Province</source>
        <translation>州・県</translation>
    </message>
    <message>
        <source>Put the pin here</source>
        <translation>ここにピンを置く</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as favorite</source>
        <translation>お気に入りに保存</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search Failed</source>
        <translation>見つかりませんでした</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>検索中</translation>
    </message>
    <message>
        <source>Searching …</source>
        <translation>検索中…</translation>
    </message>
    <message>
        <source>Sets</source>
        <translation>セット</translation>
    </message>
    <message>
        <source>Show the choices</source>
        <translation>選択項目を表示</translation>
    </message>
    <message>
        <source>Spotloom is working,please turn off the Spotloom first!</source>
        <translation>固定位置がオンです。先にオフにしてください。</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>起点</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>ここを出発地にする</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>開始時刻</translation>
    </message>
    <message>
        <source>Starts %1, arrives %2</source>
        <translation>出発 %1、到着 %2</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>通り</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>候補</translation>
    </message>
    <message>
        <source>Switch mode</source>
        <translation>モードを切り替える</translation>
    </message>
    <message>
        <source>The drive ends before it starts</source>
        <translation>到着時刻が出発時刻より前です</translation>
    </message>
    <message>
        <source>The drive has no path</source>
        <translation>ルートに道筋がありません</translation>
    </message>
    <message>
        <source>Ticked only</source>
        <translation>選択のみ</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Touch again: there was no settings file yet</source>
        <translation>もう一度タッチしてください：設定ファイルがまだありませんでした</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>市町村</translation>
    </message>
    <message>
        <source>Turn on the switch will change your coordinate automatic in a range</source>
        <translation>オンにすると、位置が周辺を自動的に動きます</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Unknow</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Visit Quorvil</source>
        <translation>Quorvil を見る</translation>
    </message>
    <message>
        <source>Wayloom</source>
        <translation>Wayloom</translation>
    </message>
    <message>
        <source>Wayloom is working</source>
        <translation>Wayloom は動作中です</translation>
    </message>
    <message>
        <source>Wayloom is working,please turn off the Wayloom first!</source>
        <translation>走行中です。先にオフにしてください。</translation>
    </message>
    <message>
        <source>White List</source>
        <translation>ホワイトリスト</translation>
    </message>
    <message>
        <source>fast</source>
        <translation>速い</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>遅い</translation>
    </message>
    <message>
        <source>定位服务未开启</source>
        <translation>位置情報サービスがオフです</translation>
    </message>
    <message>
        <source>定位失败</source>
        <translation>位置を取得できません</translation>
    </message>
    <message>
        <source>请开启定位以保证程序正常运行</source>
        <translation>アプリが正しく動作するよう、位置情報の利用を許可してください</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>yyyy年M月d日</translation>
    </message>
    <message>
        <source>ddd d MMM</source>
        <translation>M月d日(ddd)</translation>
    </message>
</context>
</TS>
