<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
    <context>
        <name>Localizable</name>
        <message>
            <source>Both</source>
            <translation>both</translation>
        </message>

        <message>
            <source>Only English</source>
            <translation>only English</translation>
        </message>
    </context>
    <context>
        <name>LANFax</name>
        <message>
            <source>Both</source>
            <translation>fax</translation>
        </message>
    </context>
</TS>
