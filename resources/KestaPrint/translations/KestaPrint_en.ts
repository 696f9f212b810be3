<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Printer:</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Copies:</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Pages Hint</source>
        <translation>All pages, or page numbers and ranges such as 1-4, 7</translation>
    </message>
    <message>
        <source>All Pages</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Per Sheet:</source>
        <translation>Per sheet</translation>
    </message>
    <message>
        <source>Pages per Sheet</source>
        <translation>Pages per sheet</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Stop Sending</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Try Again</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Save Settings</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Window Title</source>
        <translation>Print: %1</translation>
    </message>
    <message>
        <source>Window Title No Document</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Standard Input</source>
        <translation>Standard input</translation>
    </message>
    <message>
        <source>Looking for Printers</source>
        <translation>Looking for printers…</translation>
    </message>
    <message>
        <source>Reading Printer</source>
        <translation>Reading what %1 can do…</translation>
    </message>
    <message>
        <source>No Printers Title</source>
        <translation>There is no printer to print to</translation>
    </message>
    <message>
        <source>No Printers Message</source>
        <translation>The print server knows no printers. Add one in the system’s printer settings, then try again.</translation>
    </message>
    <message>
        <source>No Server Title</source>
        <translation>The printers can’t be listed</translation>
    </message>
    <message>
        <source>Unknown Printer Title</source>
        <translation>This printer can’t be used</translation>
    </message>
    <message>
        <source>Printer With Place</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Plain Options Title</source>
        <translation>Only the options above are offered</translation>
    </message>
    <message>
        <source>Other Maker Message</source>
        <extracomment>%1: the printer; %2: its maker; %3: what can be done all the same</extracomment>
        <translation>%1 has “%2” as its maker, and the pane is for printers whose maker is “Kesta”. %3</translation>
    </message>
    <message>
        <source>Pane Failed Message</source>
        <extracomment>%1: the printer; %2: a status number; %3: what can be done all the same</extracomment>
        <translation>The pane for %1 could not be started (%2). %3</translation>
    </message>
    <message>
        <source>No Description Message</source>
        <extracomment>%1: a sentence that says why; %2: what can be done all the same</extracomment>
        <translation>%1

%2</translation>
    </message>
    <message>
        <source>No Plug-in Title</source>
        <translation>The printer’s own options are missing</translation>
    </message>
    <message>
        <source>No Plug-in Message</source>
        <extracomment>%1: a sentence that says what is missing; %2: what can be done all the same</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Printing Still Works</source>
        <translation>You can still print with copies, pages and orientation as set above.</translation>
    </message>
    <message>
        <source>Saving Still Works</source>
        <translation>You can still save copies, pages and orientation as set above.</translation>
    </message>
    <message>
        <source>Pages Not Understood Title</source>
        <translation>These pages can’t be read</translation>
    </message>
    <message>
        <source>Pages Not Understood Message</source>
        <translation>Type page numbers and ranges with commas between them, for example 1-4, 7.</translation>
    </message>
    <message>
        <source>Pages Backwards Title</source>
        <translation>A page range runs backwards</translation>
    </message>
    <message>
        <source>Pages Backwards Message</source>
        <translation>Type the smaller page first, for example 3-7.</translation>
    </message>
    <message>
        <source>Pages No Such Page Title</source>
        <translation>There is no such page</translation>
    </message>
    <message>
        <source>Pages No Such Page Message</source>
        <translation>Type page numbers from 1 to %1.</translation>
    </message>
    <message>
        <source>Pages Too Many Title</source>
        <translation>These are too many ranges</translation>
    </message>
    <message>
        <source>Pages Too Many Message</source>
        <translation>Print at most %1 ranges at once.</translation>
    </message>
    <message>
        <source>Queue Not Accepting Title</source>
        <translation>%1 takes no jobs now</translation>
    </message>
    <message>
        <source>Queue Not Accepting Message</source>
        <translation>Choose another printer, or print when it accepts jobs again.</translation>
    </message>
    <message>
        <source>Queue Stopped Title</source>
        <translation>%1 is paused</translation>
    </message>
    <message>
        <source>Queue Stopped Message</source>
        <translation>The job will wait until the printer is resumed.</translation>
    </message>
    <message>
        <source>Queue Reason</source>
        <translation>%1

It says: %2</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Print Anyway</translation>
    </message>
    <message>
        <source>Sending Stopped Title</source>
        <translation>The job was stopped</translation>
    </message>
    <message>
        <source>Conflict Title</source>
        <translation>Some options don’t go together</translation>
    </message>
    <message>
        <source>Conflict Message</source>
        <translation>%1

To print, these would change:
%2</translation>
    </message>
    <message>
        <source>Conflict No Way Out</source>
        <translation>%1

Go back and change one of them.</translation>
    </message>
    <message>
        <source>Accept Changes</source>
        <translation>Accept Changes</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Go Back</translation>
    </message>
    <message>
        <source>Sending Title</source>
        <translation>Sending to %1</translation>
    </message>
    <message>
        <source>Sending Message</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Sending Failed Title</source>
        <translation>%1 did not take the job</translation>
    </message>
    <message>
        <source>Saving Failed Title</source>
        <translation>The settings were not saved</translation>
    </message>
    <message>
        <source>Save Settings Title</source>
        <translation>Save Settings</translation>
    </message>
    <message>
        <source>Settings File Name</source>
        <translation>Print Settings.plist</translation>
    </message>
    <message>
        <source>Copies Summary</source>
        <translation>%1 copies</translation>
    </message>
    <message>
        <source>Pages Summary</source>
        <translation>pages %1</translation>
    </message>
    <message>
        <source>Per Sheet Summary</source>
        <translation>%1 pages per sheet</translation>
    </message>
    <message>
        <source>Landscape Summary</source>
        <translation>landscape</translation>
    </message>
    <message>
        <source>Default Summary</source>
        <translation>1 copy, all pages</translation>
    </message>
</context>
</TS>
