<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>Brixel</name>
    <message>
        <source>day</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>日</translation>
    </message>
    <message>
        <source>days</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>日</translation>
    </message>
    <message>
        <source>hour</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>時間</translation>
    </message>
    <message>
        <source>hours</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>時間</translation>
    </message>
    <message>
        <source>minute</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>分</translation>
    </message>
    <message>
        <source>minutes</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>分</translation>
    </message>
    <message>
        <source>second</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>秒</translation>
    </message>
    <message>
        <source>seconds</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>秒</translation>
    </message>
    <message>
        <source>point</source>
        <extracomment>Spoken for a typed full stop, as in "one point five".</extracomment>
        <translation>点</translation>
    </message>
    <message>
        <source>comma</source>
        <extracomment>Spoken for a typed comma.</extracomment>
        <translation>コンマ</translation>
    </message>
</context>
</TS>
