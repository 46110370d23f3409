<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>Brixel</name>
    <message>
        <source>day</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>día</translation>
    </message>
    <message>
        <source>days</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>días</translation>
    </message>
    <message>
        <source>hour</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>hora</translation>
    </message>
    <message>
        <source>hours</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>horas</translation>
    </message>
    <message>
        <source>minute</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>minuto</translation>
    </message>
    <message>
        <source>minutes</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>minutos</translation>
    </message>
    <message>
        <source>second</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>segundo</translation>
    </message>
    <message>
        <source>seconds</source>
        <extracomment>Unit word after a count in a spelled-out duration, as in "2 days, 3 hours".</extracomment>
        <translation>segundos</translation>
    </message>
    <message>
        <source>point</source>
        <extracomment>Spoken for a typed full stop, as in "one point five".</extracomment>
        <translation>punto</translation>
    </message>
    <message>
        <source>comma</source>
        <extracomment>Spoken for a typed comma.</extracomment>
        <translation>coma</translation>
    </message>
</context>
</TS>
