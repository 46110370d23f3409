<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>Brixel</name>
    <message>
        <source>day</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>jour</translation>
    </message>
    <message>
        <source>days</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>jours</translation>
    </message>
    <message>
        <source>hour</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>heure</translation>
    </message>
    <message>
        <source>hours</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>heures</translation>
    </message>
    <message>
        <source>minute</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>minute</translation>
    </message>
    <message>
        <source>minutes</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>minutes</translation>
    </message>
    <message>
        <source>second</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>seconde</translation>
    </message>
    <message>
        <source>seconds</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>secondes</translation>
    </message>
    <message>
        <source>point</source>
        <extracomment>Spoken for a typed full stop, as in "one point five".</extracomment>
        <translation>point</translation>
    </message>
    <message>
        <source>comma</source>
        <extracomment>Spoken for a typed comma.</extracomment>
        <translation>virgule</translation>
    </message>
</context>
</TS>
