<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
    <context>
        <name>Localizable</name>
        <message>
            <source>Both</source>
            <translation>beide</translation>
        </message>

        <message>
            <source>Only German</source>
            <translation>nur deutsch</translation>
        </message>
    </context>
    <context>
        <name>LANFax</name>
        <message>
            <source>Both</source>
            <translation>Fax</translation>
        </message>
    </context>
</TS>
