<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_AT" sourcelanguage="en">
    <context>
        <name>Localizable</name>
        <message>
            <source>Both</source>
            <translation>beid</translation>
        </message>
    </context>
    <context>
        <name>LANFax</name>
        <message>
            <source>Both</source>
            <translation>Fax, bitte</translation>
        </message>
    </context>
</TS>
