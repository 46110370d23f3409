<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Brixel</name>
    <message>
        <source>day</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>Tag</translation>
    </message>
    <message>
        <source>days</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>Tage</translation>
    </message>
    <message>
        <source>hour</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>hours</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>minute</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>Minute</translation>
    </message>
    <message>
        <source>minutes</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>second</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>Sekunde</translation>
    </message>
    <message>
        <source>seconds</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>point</source>
        <extracomment>Spoken for a typed full stop, as in "one point five".</extracomment>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>comma</source>
        <extracomment>Spoken for a typed comma.</extracomment>
        <translation>Komma</translation>
    </message>
</context>
</TS>
