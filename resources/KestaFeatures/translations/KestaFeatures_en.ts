<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>PDE Shell</source>
        <translation>Kesta Features</translation>
    </message>
    <message>
        <source>Panel Not Found</source>
        <extracomment>%1: the name of a function that shows a panel; %2: the plug-in that should have it</extracomment>
        <translation>The panel of %1 can’t be found in %2.</translation>
    </message>
    <message>
        <source>Panel Not Loaded</source>
        <extracomment>%1: the name of a function that shows a panel; %2: a sentence that says why</extracomment>
        <translation>The panel of %1 can’t be loaded: %2</translation>
    </message>
    <message>
        <source>Invalid Secure Print Passcode Header</source>
        <translation>Secure Print needs a valid passcode</translation>
    </message>
    <message>
        <source>Invalid Secure Print Passcode Message</source>
        <extracomment>%1 and %2: least and most number of digits</extracomment>
        <translation>Enter the same passcode of %1 to %2 digits in both fields of the Secure Print setup.</translation>
    </message>
    <message>
        <source>PrinterDefault</source>
        <translation>Printer default</translation>
    </message>
    <message>
        <source>UseJobSetting</source>
        <translation>Same as job</translation>
    </message>
    <message>
        <source>Normal Print</source>
        <translation>Normal Print</translation>
    </message>
    <message>
        <source>SecurePrint</source>
        <translation>Secure Print</translation>
    </message>
    <message>
        <source>SampleSet</source>
        <translation>Sample Set</translation>
    </message>
    <message>
        <source>DelayedPrint</source>
        <translation>Delayed Print</translation>
    </message>
    <message>
        <source>SavedJob</source>
        <translation>Saved Job</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>Simplex</source>
        <translation>One-sided</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Two-sided, bound on the long edge</translation>
    </message>
    <message>
        <source>DuplexShort</source>
        <translation>Two-sided, bound on the short edge</translation>
    </message>
    <message>
        <source>600 x 600 Resolution</source>
        <translation>600 × 600 dpi</translation>
    </message>
    <message>
        <source>CoverPrinted</source>
        <translation>Printed</translation>
    </message>
    <message>
        <source>CoverBlankorPreprinted</source>
        <translation>Blank or preprinted</translation>
    </message>
    <message>
        <source>Separator Option None</source>
        <translation>No separators</translation>
    </message>
    <message>
        <source>Separator Option Blank</source>
        <translation>Blank separators</translation>
    </message>
    <message>
        <source>Separator Option Printed</source>
        <translation>Printed separators</translation>
    </message>
    <message>
        <source>StockSizeLetter</source>
        <translation>Letter (8.5 × 11 in)</translation>
    </message>
    <message>
        <source>StockSizeA4</source>
        <translation>A4 (210 × 297 mm)</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Disabled (Recommended)</source>
        <translation>Off (recommended)</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Economy</source>
        <translation>Economy</translation>
    </message>
    <message>
        <source>PhotoKeyAshendowne</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>StandardKeyAshendowne</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>TonerSaver</source>
        <translation>Toner saver</translation>
    </message>
    <message>
        <source>Page Number Limit Title</source>
        <translation>A page number is too large</translation>
    </message>
    <message>
        <source>Page Number Limit</source>
        <extracomment>%1: the most digits that a page number may have</extracomment>
        <translation>Type page numbers of at most %1 digits.</translation>
    </message>
    <message>
        <source>Invalid Pages Title</source>
        <translation>These pages can’t be read</translation>
    </message>
    <message>
        <source>Invalid Page Ranges</source>
        <translation>Type page numbers and ranges with commas between them, for example 1, 3-7, 12-.</translation>
    </message>
    <message>
        <source>Invalid Ranges Title</source>
        <translation>A page range runs backwards</translation>
    </message>
    <message>
        <source>Invalid Range Order</source>
        <translation>Type the smaller page first, for example 3-7.</translation>
    </message>
    <message>
        <source>Invalid Page Numbers Title</source>
        <translation>Page numbers start at 1</translation>
    </message>
    <message>
        <source>Invalid Page Numbers Message</source>
        <translation>Type pages from 1 upwards, for example 1, 3-7.</translation>
    </message>
    <message>
        <source>PageRangeConflictTitle</source>
        <translation>Some of these pages already have an exception</translation>
    </message>
    <message>
        <source>PageRangeConflictMessage</source>
        <translation>Choose other pages, or edit the exception that holds them.</translation>
    </message>
    <message>
        <source>PaperOutput</source>
        <translation>Paper/Output</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>Quality In Summary</source>
        <extracomment>In the window’s summary line. %1: what is chosen</extracomment>
        <translation>quality: %1</translation>
    </message>
    <message>
        <source>Destination In Summary</source>
        <extracomment>In the window’s summary line. %1: what is chosen</extracomment>
        <translation>destination: %1</translation>
    </message>
    <message>
        <source>Delayed Today In Summary</source>
        <extracomment>In the window’s summary line. %1: a time</extracomment>
        <translation>delayed to %1 today</translation>
    </message>
    <message>
        <source>Delayed Tomorrow In Summary</source>
        <extracomment>In the window’s summary line. %1: a time</extracomment>
        <translation>delayed to %1 tomorrow</translation>
    </message>
    <message>
        <source>Mirrored In Summary</source>
        <translation>mirrored</translation>
    </message>
    <message>
        <source>Optimization In Summary</source>
        <extracomment>In the window’s summary line. %1: what is chosen</extracomment>
        <translation>optimization: %1</translation>
    </message>
    <message>
        <source>Banner In Summary</source>
        <extracomment>In the window’s summary line. %1: what is chosen</extracomment>
        <translation>banner sheet: %1</translation>
    </message>
    <message>
        <source>Image Quality In Summary</source>
        <extracomment>In the window’s summary line. %1: what is chosen</extracomment>
        <translation>image quality: %1</translation>
    </message>
    <message>
        <source>Job Type:</source>
        <translation>Job type</translation>
    </message>
    <message>
        <source>Paper Summary:</source>
        <translation>Paper</translation>
    </message>
    <message>
        <source>Separators Option</source>
        <translation>Transparency Separators…</translation>
    </message>
    <message>
        <source>Two Sided Printing:</source>
        <translation>Two-sided printing</translation>
    </message>
    <message>
        <source>Print Quality:</source>
        <translation>Print quality</translation>
    </message>
    <message>
        <source>Stapling:</source>
        <translation>Stapling</translation>
    </message>
    <message>
        <source>Hole Punch:</source>
        <translation>Hole punch</translation>
    </message>
    <message>
        <source>No Staple Value</source>
        <translation>No staples</translation>
    </message>
    <message>
        <source>NoHolePunch</source>
        <translation>No holes</translation>
    </message>
    <message>
        <source>No Fold</source>
        <translation>No fold</translation>
    </message>
    <message>
        <source>BiFoldNoStaple</source>
        <translation>Single fold</translation>
    </message>
    <message>
        <source>Z Fold Half Sheet</source>
        <translation>Half-sheet Z fold</translation>
    </message>
    <message>
        <source>Booklet Creation...</source>
        <translation>Booklet Options…</translation>
    </message>
    <message>
        <source>Choose Paper</source>
        <translation>Choose Paper</translation>
    </message>
    <message>
        <source>Choose Finishing</source>
        <translation>Choose Finishing</translation>
    </message>
    <message>
        <source>End Booklet</source>
        <translation>End Booklet</translation>
    </message>
    <message>
        <source>Booklet Holds Two Sided</source>
        <translation>The job is a booklet, which is printed on both sides.</translation>
    </message>
    <message>
        <source>Not On This Printer</source>
        <extracomment>%1: an item of a pop-up, for a value that the printer does not offer</extracomment>
        <translation>%1, not on this printer</translation>
    </message>
    <message>
        <source>Other Value</source>
        <extracomment>%1: a number that stands for no choice that a panel knows</extracomment>
        <translation>Value %1</translation>
    </message>
    <message>
        <source>Fax Setup Unavailable Header</source>
        <translation>Faxes can’t be set up here yet</translation>
    </message>
    <message>
        <source>Fax Setup Unavailable Message</source>
        <translation>Choose another job type, or open saved settings that name the recipients.</translation>
    </message>
    <message>
        <source>Output Destination:</source>
        <translation>Output destination</translation>
    </message>
    <message>
        <source>Finishing Label</source>
        <translation>Finishing</translation>
    </message>
    <message>
        <source>Booklet FoldStaple</source>
        <translation>Booklet fold and staple</translation>
    </message>
    <message>
        <source>HolePunch</source>
        <translation>Hole punched</translation>
    </message>
    <message>
        <source>2 Hole Punch</source>
        <translation>2 holes</translation>
    </message>
    <message>
        <source>3 Hole Punch</source>
        <translation>3 holes</translation>
    </message>
    <message>
        <source>4 Hole Punch</source>
        <translation>4 holes</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>Separators</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Booklet Fold</source>
        <translation>Booklet fold</translation>
    </message>
    <message>
        <source>Booklet Layout</source>
        <translation>Booklet layout</translation>
    </message>
    <message>
        <source>FoldCFold</source>
        <translation>C fold</translation>
    </message>
    <message>
        <source>FoldZFold</source>
        <translation>Z fold</translation>
    </message>
    <message>
        <source>1 Staple</source>
        <translation>1 staple</translation>
    </message>
    <message>
        <source>2 Staples</source>
        <translation>2 staples</translation>
    </message>
    <message>
        <source>4 Staples</source>
        <translation>4 staples</translation>
    </message>
    <message>
        <source>:</source>
        <extracomment>Stands between a word and its value, with the space that goes there</extracomment>
        <translation>: </translation>
    </message>
    <message>
        <source>2HolePunch</source>
        <translation>2 holes</translation>
    </message>
    <message>
        <source>3HolePunch</source>
        <translation>3 holes</translation>
    </message>
    <message>
        <source>4HolePunch</source>
        <translation>4 holes</translation>
    </message>
    <message>
        <source>FoldZFoldHalfSheet</source>
        <translation>Half-sheet Z fold</translation>
    </message>
    <message>
        <source>Tray 8 Inserter Value</source>
        <translation>Tray 8 (inserter)</translation>
    </message>
    <message>
        <source>Inserter Not Fitted</source>
        <translation>Inserter, not on this printer</translation>
    </message>
    <message>
        <source>SecurePrintSetupTitle</source>
        <translation>Secure Print</translation>
    </message>
    <message>
        <source>SecurePrintHintText</source>
        <translation>The printer keeps the job until you enter this passcode on its control panel.</translation>
    </message>
    <message>
        <source>Passcode:</source>
        <translation>Passcode</translation>
    </message>
    <message>
        <source>ConfirmPasscode:</source>
        <translation>Confirm passcode</translation>
    </message>
    <message>
        <source>Min-Max Digits</source>
        <extracomment>%1 and %2: least and most number of digits</extracomment>
        <translation>%1 to %2 digits</translation>
    </message>
    <message>
        <source>Passcode Required Header</source>
        <translation>A passcode was made for you</translation>
    </message>
    <message>
        <source>Passcode Required Message</source>
        <extracomment>%1 and %2: least and most number of digits; %3: the passcode</extracomment>
        <translation>Note %3: you need it at the printer. To choose your own, of %1 to %2 digits, open the setup again.</translation>
    </message>
    <message>
        <source>Saved Job Passcode Required Message</source>
        <extracomment>%1 and %2: least and most number of digits; %3: the passcode</extracomment>
        <translation>Note %3: you need it to print the saved job at the printer. To choose your own, of %1 to %2 digits, open the setup again.</translation>
    </message>
    <message>
        <source>Invalid Saved Job Passcode Header</source>
        <translation>The saved job needs a valid passcode</translation>
    </message>
    <message>
        <source>Invalid Saved Job Passcode Message</source>
        <extracomment>%1 and %2: least and most number of digits</extracomment>
        <translation>Enter the same passcode of %1 to %2 digits in both fields of the saved job’s setup.</translation>
    </message>
    <message>
        <source>TimeToPrint:</source>
        <translation>Time to print</translation>
    </message>
    <message>
        <source>Saved Job</source>
        <translation>Saved Job</translation>
    </message>
    <message>
        <source>SavePrint</source>
        <translation>Save and print</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>SecureSavedJob:</source>
        <translation>Protect with a passcode</translation>
    </message>
    <message>
        <source>PublicFolder</source>
        <translation>Default public folder</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save only</translation>
    </message>
    <message>
        <source>Job Name:</source>
        <translation>Job name</translation>
    </message>
    <message>
        <source>UseJobName</source>
        <translation>Use the document’s name</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>OK Command</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel Command</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>SpecialPagesTitle</source>
        <translation>Special Pages</translation>
    </message>
    <message>
        <source>Add Covers Command</source>
        <translation>Add Covers…</translation>
    </message>
    <message>
        <source>Add Inserts Command</source>
        <translation>Add Inserts…</translation>
    </message>
    <message>
        <source>Add Exceptions Command</source>
        <translation>Add Exceptions…</translation>
    </message>
    <message>
        <source>Edit Command</source>
        <translation>Edit…</translation>
    </message>
    <message>
        <source>Delete Command</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Delete All Command</source>
        <translation>Delete All</translation>
    </message>
    <message>
        <source>Undo Command</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Move Up Command</source>
        <translation>Move Up</translation>
    </message>
    <message>
        <source>Move Down Command</source>
        <translation>Move Down</translation>
    </message>
    <message>
        <source>Page(s)</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Type Title</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Attributes Title</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>SpecialPageSummaryFront</source>
        <translation>Front</translation>
    </message>
    <message>
        <source>SpecialPageSummaryBack</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>SpecialPageSummaryCover</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>SpecialPageSummaryInsert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>SpecialPageSummaryException</source>
        <translation>Exception</translation>
    </message>
    <message>
        <source>SpecialPageSummaryBefore1</source>
        <translation>Before 1</translation>
    </message>
    <message>
        <source>Paper Name Label</source>
        <extracomment>Followed by the name that the user gave to a paper</extracomment>
        <translation>Paper</translation>
    </message>
    <message>
        <source>InsertSummaryQuantity</source>
        <extracomment>Followed by a number</extracomment>
        <translation>Sheets</translation>
    </message>
    <message>
        <source>StockTypePrecutTab</source>
        <extracomment>Followed by the number of tabs in brackets</extracomment>
        <translation>Precut tabs</translation>
    </message>
    <message>
        <source>Delete Special Pages Title</source>
        <translation>Delete special pages?</translation>
    </message>
    <message>
        <source>Delete Selected Special Pages</source>
        <translation>The selected covers, inserts and exceptions leave the list. Undo brings them back.</translation>
    </message>
    <message>
        <source>Delete All Special Pages</source>
        <translation>All covers, inserts and exceptions leave the list. Undo brings them back.</translation>
    </message>
    <message>
        <source>No Command</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes Command</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Defaults</translation>
    </message>
    <message>
        <source>Job Settings Label</source>
        <translation>Job settings</translation>
    </message>
    <message>
        <source>Cover Options Label</source>
        <translation>Covers</translation>
    </message>
    <message>
        <source>Front Cover Paper Label</source>
        <translation>Front cover, paper</translation>
    </message>
    <message>
        <source>Back Cover Paper Label</source>
        <translation>Back cover, paper</translation>
    </message>
    <message>
        <source>Front Cover Source Label</source>
        <translation>Tray</translation>
    </message>
    <message>
        <source>Back Cover Source Label</source>
        <translation>Tray</translation>
    </message>
    <message>
        <source>Insert Options Label</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Insert Quantity Label</source>
        <translation>Sheets</translation>
    </message>
    <message>
        <source>Pages Label</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Page Range Instructions</source>
        <translation>Page numbers and ranges, for example 1, 3-7</translation>
    </message>
    <message>
        <source>ImageShift:</source>
        <translation>Image shift</translation>
    </message>
    <message>
        <source>Covers Dialog Title Edit</source>
        <translation>Edit Covers</translation>
    </message>
    <message>
        <source>Covers Dialog Title Add</source>
        <translation>Add Covers</translation>
    </message>
    <message>
        <source>InsertsDialogTitleEdit</source>
        <translation>Edit Inserts</translation>
    </message>
    <message>
        <source>InsertsDialogTitleAdd</source>
        <translation>Add Inserts</translation>
    </message>
    <message>
        <source>Edit Exceptions Title</source>
        <translation>Edit Exceptions</translation>
    </message>
    <message>
        <source>Add Exceptions Title</source>
        <translation>Add Exceptions</translation>
    </message>
    <message>
        <source>No Covers</source>
        <translation>No covers</translation>
    </message>
    <message>
        <source>Front Cover Only</source>
        <translation>Front cover only</translation>
    </message>
    <message>
        <source>Back Cover Only</source>
        <translation>Back cover only</translation>
    </message>
    <message>
        <source>Same Covers</source>
        <translation>Front and back cover, the same</translation>
    </message>
    <message>
        <source>Different Covers</source>
        <translation>Front and back cover, different</translation>
    </message>
    <message>
        <source>After Page</source>
        <translation>After pages</translation>
    </message>
    <message>
        <source>Setup...</source>
        <translation>Set Up…</translation>
    </message>
    <message>
        <source>ImageOptions</source>
        <translation>Image Options</translation>
    </message>
    <message>
        <source>StockName</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>StockColor</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>OtherSize</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>OtherColor</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>OtherType</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Invalid Paper Size Header</source>
        <translation>The printer can’t take paper of this size</translation>
    </message>
    <message>
        <source>Invalid Paper Size Message</source>
        <translation>Sizes outside of the limits will be set to the nearest that it takes. Check them, then choose OK again.</translation>
    </message>
    <message>
        <source>Custom Size Setup</source>
        <translation>Custom Paper Size</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Length</translation>
    </message>
    <message>
        <source>Units Label</source>
        <translation>Units</translation>
    </message>
    <message>
        <source>Tab Stock Setup</source>
        <translation>Tab Stock Setup</translation>
    </message>
    <message>
        <source>Number in Sequence:</source>
        <translation>Tabs in a set</translation>
    </message>
    <message>
        <source>Tab Margin Shift:</source>
        <translation>Tab margin shift</translation>
    </message>
    <message>
        <source>0.5" (8.5x11" Template)</source>
        <translation>0.5 in (8.5 × 11 in template)</translation>
    </message>
    <message>
        <source>12.7 mm (A4 Template)</source>
        <translation>12.7 mm (A4 template)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Transparency Separator Option Label</source>
        <translation>Transparency separators</translation>
    </message>
    <message>
        <source>Transparency Separator Color Label</source>
        <translation>Separator color</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Inches</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation>Millimeters</translation>
    </message>
    <message>
        <source>Min-Max Inches</source>
        <extracomment>%1 and %2: the least and the most</extracomment>
        <translation>%1 to %2 in</translation>
    </message>
    <message>
        <source>Min-Max Millimeters</source>
        <extracomment>%1 and %2: the least and the most</extracomment>
        <translation>%1 to %2 mm</translation>
    </message>
    <message>
        <source>Min-Max Number</source>
        <extracomment>%1 and %2: the least and the most</extracomment>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>Stock Description Title</source>
        <translation>Paper Description</translation>
    </message>
    <message>
        <source>Stock Description:</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Stock Description Hint</source>
        <translation>A note about this paper, for whoever loads it.</translation>
    </message>
    <message>
        <source>Precut Tab Setup</source>
        <translation>Precut Tabs</translation>
    </message>
    <message>
        <source>Precut Tab Hint</source>
        <translation>After this many tabs the set begins again.</translation>
    </message>
    <message>
        <source>Image Shift Ends Hint</source>
        <extracomment>Below the choice "None" of the tab margin shift, where the pages have an image shift</extracomment>
        <translation>These pages’ image shift ends with it, on both sides.</translation>
    </message>
    <message>
        <source>Tab Shift Distance:</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Separators Title</source>
        <translation>Transparency Separators</translation>
    </message>
    <message>
        <source>Advanced Stock Title</source>
        <translation>Advanced Paper Selection</translation>
    </message>
    <message>
        <source>Stock Size:</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Stock Color:</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Stock Type:</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Stock Punched:</source>
        <translation>Holes</translation>
    </message>
    <message>
        <source>StockNotPunched</source>
        <translation>Not punched</translation>
    </message>
    <message>
        <source>StockPunched</source>
        <translation>Hole punched</translation>
    </message>
    <message>
        <source>Stock Weight:</source>
        <translation>Weight</translation>
    </message>
    <message>
        <source>Stock Weight Unit</source>
        <extracomment>Grams per square metre</extracomment>
        <translation>g/m²</translation>
    </message>
    <message>
        <source>BookletWatermarkPanelTitle</source>
        <translation>Booklet/Watermark</translation>
    </message>
    <message>
        <source>Booklet Layout:</source>
        <translation>Booklet layout</translation>
    </message>
    <message>
        <source>Booklet Options... Title</source>
        <translation>Booklet Options…</translation>
    </message>
    <message>
        <source>Watermark Title</source>
        <translation>Watermark</translation>
    </message>
    <message>
        <source>No Page Borders</source>
        <translation>No borders</translation>
    </message>
    <message>
        <source>Draw Page Borders</source>
        <translation>Draw borders around pages</translation>
    </message>
    <message>
        <source>WatermarkBackground</source>
        <translation>Behind the page</translation>
    </message>
    <message>
        <source>WatermarkBlend</source>
        <translation>Blended with the page</translation>
    </message>
    <message>
        <source>WatermarkForeground</source>
        <translation>In front of the page</translation>
    </message>
    <message>
        <source>WatermarkPrintOnAllPages</source>
        <translation>On all pages</translation>
    </message>
    <message>
        <source>WatermarmPrintOnPage1Only</source>
        <translation>On page 1 only</translation>
    </message>
    <message>
        <source>Watermark Editor</source>
        <translation>Watermark Editor</translation>
    </message>
    <message>
        <source>Delete Watermark Header</source>
        <translation>Delete this watermark?</translation>
    </message>
    <message>
        <source>Delete Watermark Message</source>
        <extracomment>%1: the name of the watermark</extracomment>
        <translation>The watermark “%1” is removed for everybody who uses this computer.</translation>
    </message>
    <message>
        <source>Fold Without Layout Hint</source>
        <translation>The pages stay in their order. Turn the booklet layout on to read them as a booklet.</translation>
    </message>
    <message>
        <source>Booklet Options Title</source>
        <translation>Booklet Options</translation>
    </message>
    <message>
        <source>Booklet Finishing:</source>
        <translation>Booklet finishing</translation>
    </message>
    <message>
        <source>Booklet Fold and Staple</source>
        <translation>Booklet fold and staple</translation>
    </message>
    <message>
        <source>Draw Outlines</source>
        <translation>Draw page outlines</translation>
    </message>
    <message>
        <source>Fit to New Size Label</source>
        <translation>Fit to new size</translation>
    </message>
    <message>
        <source>Gutter Label</source>
        <translation>Gutter</translation>
    </message>
    <message>
        <source>Gutter Range Label</source>
        <extracomment>%1 and %2: least and greatest gutter</extracomment>
        <translation>%1 to %2 points</translation>
    </message>
    <message>
        <source>Creep Label</source>
        <translation>Creep</translation>
    </message>
    <message>
        <source>Creep Range Label</source>
        <extracomment>%1 and %2: least and greatest creep</extracomment>
        <translation>%1 to %2 points</translation>
    </message>
    <message>
        <source>Page Borders Label</source>
        <translation>Page borders</translation>
    </message>
    <message>
        <source>Booklet Locked By Pages</source>
        <extracomment>%1: what stands in the way, such as “inserts and exceptions”</extracomment>
        <translation>Locked by the %1 of this job. A booklet needs pages that are all alike.</translation>
    </message>
    <message>
        <source>Booklet Locked By Staple</source>
        <translation>Locked by the staple position. A booklet is stapled in its fold.</translation>
    </message>
    <message>
        <source>Locking Inserts</source>
        <extracomment>In “Locked by the … of this job”</extracomment>
        <translation>inserts</translation>
    </message>
    <message>
        <source>Locking Exceptions</source>
        <extracomment>In “Locked by the … of this job”</extracomment>
        <translation>exceptions</translation>
    </message>
    <message>
        <source>Locking Back Cover</source>
        <extracomment>In “Locked by the … of this job”</extracomment>
        <translation>back cover</translation>
    </message>
    <message>
        <source>List Of One</source>
        <extracomment>%1: the only part of a list</extracomment>
        <translation>%1</translation>
    </message>
    <message>
        <source>List Of Two</source>
        <extracomment>%1 and %2: the parts of a list</extracomment>
        <translation>%1 and %2</translation>
    </message>
    <message>
        <source>List Of Three</source>
        <extracomment>%1 to %3: the parts of a list</extracomment>
        <translation>%1, %2 and %3</translation>
    </message>
    <message>
        <source>Show Special Pages</source>
        <translation>Show Special Pages</translation>
    </message>
    <message>
        <source>Booklet Fold Hint</source>
        <translation>From above: the gutter, and the creep past the dashed line</translation>
    </message>
    <message>
        <source>Watermark On All Pages</source>
        <extracomment>%1: the layer, such as “Blended with the page”</extracomment>
        <translation>%1, on all pages</translation>
    </message>
    <message>
        <source>Watermark On Page 1</source>
        <extracomment>%1: the layer, such as “Blended with the page”</extracomment>
        <translation>%1, on page 1 only</translation>
    </message>
    <message>
        <source>Watermark Preview Name</source>
        <translation>Preview of the watermark</translation>
    </message>
    <message>
        <source>Watermark Summary</source>
        <extracomment>%1: the name of the watermark</extracomment>
        <translation>Watermark “%1”</translation>
    </message>
    <message>
        <source>Watermark Missing Summary</source>
        <extracomment>%1: the name of the watermark</extracomment>
        <translation>Watermark “%1” not on this computer</translation>
    </message>
    <message>
        <source>Watermark Not Here</source>
        <extracomment>%1: the name of the watermark</extracomment>
        <translation>The watermark “%1” of these settings is not on this computer, so none is printed. Choose another one, or make it anew.</translation>
    </message>
    <message>
        <source>Font Substituted</source>
        <extracomment>%1 and %2: names of fonts</extracomment>
        <translation>%1 is not on this computer. %2 is drawn and printed in its place.</translation>
    </message>
    <message>
        <source>Font Lacks Characters</source>
        <extracomment>%1 and %2: names of fonts</extracomment>
        <translation>%1 lacks a character of the text. %2 is drawn and printed in its place.</translation>
    </message>
    <message>
        <source>Characters Missing</source>
        <extracomment>%1: characters</extracomment>
        <translation>No font on this computer has %1.</translation>
    </message>
    <message>
        <source>No Font For Watermark</source>
        <translation>This computer has no font to draw the text in; the watermark is left out.</translation>
    </message>
    <message>
        <source>Font Can't Be Sent</source>
        <extracomment>%1: the name of a font</extracomment>
        <translation>%1 can’t be sent to the printer; the watermark is left out.</translation>
    </message>
    <message>
        <source>Font May Not Be Sent</source>
        <extracomment>%1: the name of a font</extracomment>
        <translation>The license of %1 does not allow it to be sent to the printer; the watermark is left out.</translation>
    </message>
    <message>
        <source>Font Can't Be Kept</source>
        <extracomment>%1: the name of a font</extracomment>
        <translation>%1 can’t be kept with the watermarks of this computer, so it is not sent to the printer; the watermark is left out.</translation>
    </message>
    <message>
        <source>Picture Can't Be Opened</source>
        <extracomment>%1: the name of a file</extracomment>
        <translation>The picture “%1” can’t be opened.</translation>
    </message>
    <message>
        <source>Picture Of No Known Kind</source>
        <extracomment>%1: the name of a file</extracomment>
        <translation>“%1” is no picture of a known kind, or it is damaged.</translation>
    </message>
    <message>
        <source>Picture Too Large</source>
        <extracomment>%1: the name of a file</extracomment>
        <translation>The picture “%1” has too many pixels.</translation>
    </message>
    <message>
        <source>Picture Refused Header</source>
        <translation>This picture can’t be used</translation>
    </message>
    <message>
        <source>Watermark Name Header</source>
        <translation>Choose another name</translation>
    </message>
    <message>
        <source>Watermark Name Too Long</source>
        <extracomment>%1: the name of a watermark</extracomment>
        <translation>A name has room for 511 bytes. “%1” is longer.</translation>
    </message>
    <message>
        <source>Watermark Name Reserved</source>
        <extracomment>%1: the name of a watermark</extracomment>
        <translation>“%1” is a name that the list of watermarks needs for itself. Change the text, or give the file another name.</translation>
    </message>
    <message>
        <source>Replace Watermark Header</source>
        <translation>Replace the other watermark?</translation>
    </message>
    <message>
        <source>Replace Watermark Message</source>
        <extracomment>%1: the name of a watermark</extracomment>
        <translation>There is a watermark “%1” already. Everybody who uses this computer gets this one in its place.</translation>
    </message>
    <message>
        <source>Watermark Not Saved Header</source>
        <translation>The watermark is not saved</translation>
    </message>
    <message>
        <source>Watermark Not Saved Message</source>
        <extracomment>%1: the name of a watermark</extracomment>
        <translation>The list of watermarks can’t be written just now, so “%1” stays as it was.</translation>
    </message>
    <message>
        <source>Watermark Not Deleted Header</source>
        <translation>The watermark is not deleted</translation>
    </message>
    <message>
        <source>Watermark Gone Header</source>
        <translation>This watermark is gone</translation>
    </message>
    <message>
        <source>Watermark Gone Message</source>
        <extracomment>%1: the name of a watermark</extracomment>
        <translation>Somebody else has removed or renamed “%1”. It has left the menu.</translation>
    </message>
    <message>
        <source>Own Watermarks Header</source>
        <translation>Copy your own watermarks?</translation>
    </message>
    <message>
        <source>Own Watermarks Message</source>
        <extracomment>%1: names of watermarks</extracomment>
        <translation>Everybody who uses this computer shares one list of watermarks now. It lacks these that you had before: %1.</translation>
    </message>
    <message>
        <source>Watermark Kind Name</source>
        <translation>Kind of watermark</translation>
    </message>
    <message>
        <source>Watermark Text Name</source>
        <translation>Text of the watermark</translation>
    </message>
    <message>
        <source>Watermark Text Placeholder</source>
        <translation>For example: DRAFT</translation>
    </message>
    <message>
        <source>Watermark Color Name</source>
        <translation>Color of the text</translation>
    </message>
    <message>
        <source>Picture File Name</source>
        <translation>File of the picture</translation>
    </message>
    <message>
        <source>Font And Size</source>
        <extracomment>%1: the name of a font, %2: its size</extracomment>
        <translation>%1, %2 points</translation>
    </message>
    <message>
        <source>Degrees Unit</source>
        <translation>degrees</translation>
    </message>
    <message>
        <source>Percent Unit</source>
        <translation>percent</translation>
    </message>
    <message>
        <source>Points Unit</source>
        <translation>points</translation>
    </message>
    <message>
        <source>Watermark Preview Hint</source>
        <translation>Drag the text to move it, its handle to turn it.</translation>
    </message>
    <message>
        <source>Picture Watermark Hint</source>
        <translation>A picture is printed in the middle of the page and at full density.</translation>
    </message>
    <message>
        <source>Fonts Title</source>
        <translation>Fonts</translation>
    </message>
    <message>
        <source>Font Search Placeholder</source>
        <translation>Type a part of the name</translation>
    </message>
    <message>
        <source>Font List Name</source>
        <translation>Fonts of this computer</translation>
    </message>
    <message>
        <source>No Font Found</source>
        <translation>No font has this in its name</translation>
    </message>
    <message>
        <source>Font Sample Name</source>
        <translation>Sample of the font</translation>
    </message>
    <message numerus="yes">
        <source>Font Count</source>
        <translation>
            <numerusform>%n font</numerusform>
            <numerusform>%n fonts</numerusform>
        </translation>
    </message>
    <message>
        <source>NoWatermark</source>
        <translation>None</translation>
    </message>
    <message>
        <source>-</source>
        <extracomment>A line between menu items: leave it as it is</extracomment>
        <translation>-</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>New…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Edit…</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>DraftWatermark</source>
        <translation>Draft</translation>
    </message>
    <message>
        <source>ConfidentialWatermark</source>
        <translation>Confidential</translation>
    </message>
    <message>
        <source>CopyWatermark</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Scale</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Density</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>U.S.</source>
        <translation>U.S.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>ShowFonts</source>
        <translation>Show Fonts…</translation>
    </message>
    <message>
        <source>ChoosePicture</source>
        <translation>Choose Picture…</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Center</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Image Quality:</source>
        <translation>Image quality</translation>
    </message>
    <message>
        <source>Invert Image Label</source>
        <translation>Mirroring</translation>
    </message>
    <message>
        <source>Mirror Image Title</source>
        <translation>Mirror image</translation>
    </message>
    <message>
        <source>JobNotes</source>
        <translation>Job Notes</translation>
    </message>
    <message>
        <source>UseLoginName</source>
        <translation>Use the login name</translation>
    </message>
    <message>
        <source>Sender Name:</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>Recipient Name:</source>
        <translation>Recipient</translation>
    </message>
    <message>
        <source>Banner Message:</source>
        <translation>Message on the banner sheet</translation>
    </message>
    <message>
        <source>Job Start Message:</source>
        <translation>Message when the job starts</translation>
    </message>
    <message>
        <source>AdditionalInfo:</source>
        <translation>Additional information</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>RightToLeft</source>
        <translation>Right to left</translation>
    </message>
    <message>
        <source>LeftToRight</source>
        <translation>Left to right</translation>
    </message>
    <message>
        <source>Face Down</source>
        <translation>Face down</translation>
    </message>
    <message>
        <source>Face Up</source>
        <translation>Face up</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scan</translation>
    </message>
    <message>
        <source>Gather</source>
        <translation>Gather</translation>
    </message>
    <message>
        <source>True</source>
        <translation>True</translation>
    </message>
    <message>
        <source>False</source>
        <translation>False</translation>
    </message>
    <message>
        <source>Tessaline 9100</source>
        <translation>Tessaline 9100</translation>
    </message>
    <message>
        <source>Booklet Image Order:</source>
        <translation>Booklet image order</translation>
    </message>
    <message>
        <source>Output Options:</source>
        <translation>Output options</translation>
    </message>
    <message>
        <source>Banner Sheet:</source>
        <translation>Banner sheet</translation>
    </message>
    <message>
        <source>Request Offset:</source>
        <translation>Offset stacking</translation>
    </message>
    <message>
        <source>Mirrored Output:</source>
        <translation>Mirrored output</translation>
    </message>
    <message>
        <source>Printing Optimization:</source>
        <translation>Printing optimization</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>About…</translation>
    </message>
    <message>
        <source>KESTA_WEB_LINKS</source>
        <extracomment>Also the title of the window that the button opens</extracomment>
        <translation>Printer Web Pages…</translation>
    </message>
    <message>
        <source>WEB_LINK_SYSTEM_STATUS</source>
        <translation>Printer Status</translation>
    </message>
    <message>
        <source>WEB_LINK_ORDER_SUPPLIES</source>
        <translation>Order Supplies</translation>
    </message>
    <message>
        <source>WEB_LINK_DOCUMENTATION</source>
        <translation>Documentation</translation>
    </message>
    <message>
        <source>WEB_LINK_KESTA_SUPPORT_CENTER</source>
        <translation>Kesta Support Center</translation>
    </message>
    <message>
        <source>WEB_LINK_HEADER</source>
        <translation>Pages about this printer, opened in your web browser</translation>
    </message>
    <message>
        <source>WEB_LINK_SYSTEM_STATUS_TEXT</source>
        <translation>Trays, toner and jobs, on the printer’s own page</translation>
    </message>
    <message>
        <source>WEB_LINK_COLOR_TEXT</source>
        <translation>Advice on color and color management</translation>
    </message>
    <message>
        <source>WEB_LINK_CORVIDS_TEXT</source>
        <translation>Ready-made settings and templates</translation>
    </message>
    <message>
        <source>WEB_LINK_ORDER_SUPPLIES_TEXT</source>
        <translation>Toner, staples and paper for this printer</translation>
    </message>
    <message>
        <source>WEB_LINK_DOCUMENTATION_TEXT</source>
        <translation>User guides for this printer</translation>
    </message>
    <message>
        <source>WEB_LINK_KESTA_CENTER_SUPPORT_TEXT</source>
        <translation>Help and troubleshooting on this computer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Print a Confirmation Sheet</source>
        <translation>Print a confirmation sheet</translation>
    </message>
    <message>
        <source>Do Not Print a Confirmation Sheet</source>
        <translation>No confirmation sheet</translation>
    </message>
    <message>
        <source>Forced 4800 bps</source>
        <translation>4800 bit/s, forced</translation>
    </message>
    <message>
        <source>G3 (14.4 Kbps)</source>
        <translation>G3 (14.4 kbit/s)</translation>
    </message>
    <message>
        <source>Super G3 (33.6 Kbps)</source>
        <translation>Super G3 (33.6 kbit/s)</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Superfine</source>
        <translation>Superfine</translation>
    </message>
    <message>
        <source>Do Not Print a Cover Sheet</source>
        <translation>No cover sheet</translation>
    </message>
    <message>
        <source>Print a Cover Sheet...</source>
        <translation>Cover sheet…</translation>
    </message>
    <message>
        <source>Show All Recipients</source>
        <translation>Show all recipients</translation>
    </message>
    <message>
        <source>Hide Recipient's Information</source>
        <translation>Hide the recipients</translation>
    </message>
    <message>
        <source>Show Custom Text</source>
        <translation>Show a text of your own</translation>
    </message>
    <message>
        <source>Show Sender's Information</source>
        <translation>Show the sender</translation>
    </message>
    <message>
        <source>Hide Sender's Information</source>
        <translation>Hide the sender</translation>
    </message>
    <message>
        <source>Cover Sheet Paper Size</source>
        <translation>Cover Sheet Paper Size</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Previous panel</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next panel</translation>
    </message>
    <message>
        <source>Panel Choice</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Help Command</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>About Title</source>
        <translation>About Kesta Print</translation>
    </message>
    <message>
        <source>About Product</source>
        <translation>Kesta Print</translation>
    </message>
    <message>
        <source>About Version</source>
        <extracomment>%1: the version number</extracomment>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>About Printer:</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>About Accessories:</source>
        <translation>Accessories</translation>
    </message>
    <message>
        <source>About Licence</source>
        <translation>Uses Qt, under the GNU Lesser General Public License 3, and CUPS, under the Apache License 2.0.</translation>
    </message>
    <message>
        <source>Custom Value Title</source>
        <translation>Custom Value</translation>
    </message>
    <message>
        <source>Custom Value:</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Special Pages List</source>
        <translation>Special pages</translation>
    </message>
    <message>
        <source>Special Pages Empty</source>
        <translation>No special pages yet. Covers, inserts, and pages with settings of their own stand here once you have added them.</translation>
    </message>
    <message>
        <source>Special Pages In Booklet</source>
        <translation>The job is a booklet. Its pages have to be alike: delete inserts and exceptions, or turn the booklet off.</translation>
    </message>
    <message>
        <source>No Special Pages In Booklet</source>
        <translation>A booklet takes no inserts and no exceptions.</translation>
    </message>
    <message>
        <source>No Special Pages With N-Up</source>
        <translation>Inserts and exceptions need one page per sheet.</translation>
    </message>
    <message>
        <source>Sheets In List</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>Sheets Described</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Paper Name In List</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Page Range In List</source>
        <translation>%1-%2</translation>
    </message>
    <message>
        <source>CoverPrintedBack</source>
        <translation>Printed on the back</translation>
    </message>
    <message>
        <source>Unknown Setting</source>
        <translation>Unknown setting %1</translation>
    </message>
    <message>
        <source>Spoken Special Page</source>
        <translation>Row %1 of %2, %3, %4, %5</translation>
    </message>
    <message>
        <source>Spoken Page Range</source>
        <translation>pages %1 to %2</translation>
    </message>
    <message>
        <source>Spoken Page</source>
        <translation>page %1</translation>
    </message>
    <message>
        <source>Spoken After Page</source>
        <translation>after page %1</translation>
    </message>
    <message>
        <source>Both Covers Summary</source>
        <translation>front and back cover</translation>
    </message>
    <message>
        <source>Front Cover Summary</source>
        <translation>front cover</translation>
    </message>
    <message>
        <source>Back Cover Summary</source>
        <translation>back cover</translation>
    </message>
    <message numerus="yes">
        <source>Inserts Summary</source>
        <translation>
            <numerusform>%n insert</numerusform>
            <numerusform>%n inserts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exceptions Summary</source>
        <translation>
            <numerusform>%n exception</numerusform>
            <numerusform>%n exceptions</numerusform>
        </translation>
    </message>
    <message>
        <source>Exception Page Summary</source>
        <translation>page %1 as an exception</translation>
    </message>
    <message>
        <source>Exception Range Summary</source>
        <translation>pages %1 as an exception</translation>
    </message>
    <message>
        <source>Exception Page On Summary</source>
        <translation>page %1 on %2</translation>
    </message>
    <message>
        <source>Exception Range On Summary</source>
        <translation>pages %1 on %2</translation>
    </message>
    <message>
        <source>Exception Page As Summary</source>
        <translation>page %1 with its own settings (%2)</translation>
    </message>
    <message>
        <source>Exception Range As Summary</source>
        <translation>pages %1 with their own settings (%2)</translation>
    </message>
    <message>
        <source>Too Many Pages Title</source>
        <translation>These are too many pages</translation>
    </message>
    <message>
        <source>Too Many Pages Message</source>
        <translation>Type at most %1 pages at a time.</translation>
    </message>
    <message>
        <source>Too Many Special Pages Title</source>
        <translation>The job can’t carry so many special pages</translation>
    </message>
    <message>
        <source>Too Many Special Pages Message</source>
        <translation>Nothing was changed. Choose fewer pages, or delete some of the special pages first.</translation>
    </message>
    <message>
        <source>Front Cover Title</source>
        <translation>Front cover</translation>
    </message>
    <message>
        <source>Back Cover Title</source>
        <translation>Back cover</translation>
    </message>
    <message>
        <source>Cover Printing Label</source>
        <translation>Printing</translation>
    </message>
    <message>
        <source>Front Cover Printing Name</source>
        <translation>Front cover, printing</translation>
    </message>
    <message>
        <source>Back Cover Printing Name</source>
        <translation>Back cover, printing</translation>
    </message>
    <message>
        <source>Front Cover Tray Name</source>
        <translation>Front cover, tray</translation>
    </message>
    <message>
        <source>Back Cover Tray Name</source>
        <translation>Back cover, tray</translation>
    </message>
    <message>
        <source>Any Tray Hint</source>
        <translation>Any tray with this paper</translation>
    </message>
    <message>
        <source>Automatic Tray</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>Named Tray Hint</source>
        <translation>Whatever paper lies in it</translation>
    </message>
    <message>
        <source>Sheets After Pages</source>
        <translation>after each of these pages</translation>
    </message>
    <message>
        <source>Sheets Before Page 1</source>
        <translation>before page 1</translation>
    </message>
    <message>
        <source>Exception Settings Name</source>
        <translation>Settings of the exceptions</translation>
    </message>
    <message>
        <source>Image Shift Title</source>
        <translation>Image Shift</translation>
    </message>
    <message>
        <source>Shift Check Box</source>
        <translation>Shift the image on the page</translation>
    </message>
    <message>
        <source>Alike Check Box</source>
        <translation>Both sides alike</translation>
    </message>
    <message>
        <source>Shift Horizontal Label</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Shift Vertical Label</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Side 1 Label</source>
        <translation>Side 1</translation>
    </message>
    <message>
        <source>Side 2 Label</source>
        <translation>Side 2</translation>
    </message>
    <message>
        <source>Side 1 Horizontal Name</source>
        <translation>Side 1, horizontal</translation>
    </message>
    <message>
        <source>Side 1 Vertical Name</source>
        <translation>Side 1, vertical</translation>
    </message>
    <message>
        <source>Side 2 Horizontal Name</source>
        <translation>Side 2, horizontal</translation>
    </message>
    <message>
        <source>Side 2 Vertical Name</source>
        <translation>Side 2, vertical</translation>
    </message>
    <message>
        <source>Shift Directions</source>
        <translation>Positive numbers move right and up.</translation>
    </message>
    <message>
        <source>Shift Picture Name</source>
        <translation>Where the image is printed</translation>
    </message>
    <message>
        <source>Shift Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Shift Of Both Sides</source>
        <translation>Both sides: %1</translation>
    </message>
    <message>
        <source>Shift Of Side 1</source>
        <translation>Side 1: %1</translation>
    </message>
    <message>
        <source>Shift Of Side 2</source>
        <translation>Side 2: %1</translation>
    </message>
    <message>
        <source>Shift Right</source>
        <translation>%1 to the right</translation>
    </message>
    <message>
        <source>Shift Left</source>
        <translation>%1 to the left</translation>
    </message>
    <message>
        <source>Shift Up</source>
        <translation>%1 up</translation>
    </message>
    <message>
        <source>Shift Down</source>
        <translation>%1 down</translation>
    </message>
    <message>
        <source>Shift Nowhere</source>
        <translation>not shifted</translation>
    </message>
    <message>
        <source>Shift In Inches</source>
        <translation>%1 in</translation>
    </message>
    <message>
        <source>Shift In Millimeters</source>
        <translation>%1 mm</translation>
    </message>
</context>
<context>
    <name>LANFax</name>
    <message>
        <source>Fax Window Title</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Recipients</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Cover Sheet</source>
        <translation>Cover Sheet</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Fax Number</source>
        <translation>Fax number</translation>
    </message>
    <message>
        <source>Organization</source>
        <translation>Organization</translation>
    </message>
    <message>
        <source>Phone Number</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>E-mail Address</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Mailbox</source>
        <translation>Mailbox</translation>
    </message>
    <message>
        <source>Add Recipient...</source>
        <translation>Add Recipient…</translation>
    </message>
    <message>
        <source>Add From Address Book...</source>
        <translation>Add From Address Book…</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Edit…</translation>
    </message>
    <message>
        <source>Save as Group...</source>
        <translation>Save as Group…</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferences…</translation>
    </message>
    <message>
        <source>Remove Command</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Send At:</source>
        <translation>Send at</translation>
    </message>
    <message>
        <source>Send Now</source>
        <translation>Send now</translation>
    </message>
    <message>
        <source>Notes Label</source>
        <extracomment>Printed on the cover sheet</extracomment>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Duplicate Recipient Header</source>
        <translation>Add this recipient again?</translation>
    </message>
    <message>
        <source>Duplicate Recipient Message</source>
        <extracomment>%1: fax number; %2: the recipient’s name</extracomment>
        <translation>%2 with the fax number %1 is already in the list.</translation>
    </message>
    <message>
        <source>Add Fax Recipient Dialog Title</source>
        <translation>Add Fax Recipient</translation>
    </message>
    <message>
        <source>Fax Recipient Dialog Title</source>
        <translation>Edit Fax Recipient</translation>
    </message>
    <message>
        <source>Fax Preferences Dialog Title</source>
        <translation>Fax Preferences</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Fax Number:</source>
        <translation>Fax number</translation>
    </message>
    <message>
        <source>Organization:</source>
        <translation>Organization</translation>
    </message>
    <message>
        <source>Telephone Number:</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>E-mail Address:</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Mailbox:</source>
        <translation>Mailbox</translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation>Required</translation>
    </message>
    <message>
        <source>Save To Address Book</source>
        <extracomment>A check box, and the title of the window that saves a group</extracomment>
        <translation>Save to the address book</translation>
    </message>
    <message>
        <source>Required Field Header</source>
        <translation>A required field is empty</translation>
    </message>
    <message>
        <source>Name Required Message</source>
        <translation>Type the recipient’s name.</translation>
    </message>
    <message>
        <source>Fax Number Required Message</source>
        <translation>Type the recipient’s fax number.</translation>
    </message>
    <message>
        <source>Group Name Required Message</source>
        <translation>Type a name for the group.</translation>
    </message>
    <message>
        <source>Alert Header</source>
        <translation>This recipient can’t be added</translation>
    </message>
    <message>
        <source>Max Recipients Header</source>
        <translation>Too many recipients for one fax</translation>
    </message>
    <message>
        <source>Max Recipients Message</source>
        <extracomment>%1: the most recipients of a fax</extracomment>
        <translation>A fax goes to at most %1 recipients. Remove some first, or send the fax in two jobs.</translation>
    </message>
    <message>
        <source>Remove One Recipient Header</source>
        <translation>Remove this recipient?</translation>
    </message>
    <message>
        <source>Remove One Recipient Message</source>
        <extracomment>%1: fax number; %2: the recipient’s name</extracomment>
        <translation>%2 with the fax number %1 leaves the list.</translation>
    </message>
    <message>
        <source>Remove Multiple Recipients Header</source>
        <translation>Remove these recipients?</translation>
    </message>
    <message>
        <source>Remove Multiple Recipients Message</source>
        <extracomment>%1: how many</extracomment>
        <translation>%1 recipients leave the list.</translation>
    </message>
    <message>
        <source>Group Name:</source>
        <translation>Group name</translation>
    </message>
    <message>
        <source>Members:</source>
        <translation>Members</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Dialing String Too Long Description</source>
        <translation>The printer can’t dial numbers this long. Shorten the fax numbers below, the prefix or the credit card number.</translation>
    </message>
    <message>
        <source>Fax Recipients</source>
        <translation>Fax recipients</translation>
    </message>
    <message>
        <source>Fax Dialing Options:</source>
        <translation>Dialing</translation>
    </message>
    <message>
        <source>Dialing Prefix</source>
        <translation>Dialing prefix</translation>
    </message>
    <message>
        <source>Credit Card</source>
        <translation>Credit card</translation>
    </message>
    <message>
        <source>User Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>Prompt Duplicate Recipient</source>
        <translation>Ask before adding a recipient twice</translation>
    </message>
    <message>
        <source>Prompt Remove Recipient</source>
        <translation>Ask before removing recipients</translation>
    </message>
    <message>
        <source>From Label</source>
        <extracomment>Printed on the cover sheet</extracomment>
        <translation>From</translation>
    </message>
    <message>
        <source>To Label</source>
        <extracomment>Printed on the cover sheet</extracomment>
        <translation>To</translation>
    </message>
    <message>
        <source>Phone Label</source>
        <extracomment>Printed on the cover sheet</extracomment>
        <translation>Phone</translation>
    </message>
    <message>
        <source>Fax Label</source>
        <extracomment>Printed on the cover sheet</extracomment>
        <translation>Fax</translation>
    </message>
    <message>
        <source>Recipient's Information:</source>
        <translation>Recipient</translation>
    </message>
    <message>
        <source>Sender's Information:</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>Cover Sheet Image:</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Image Editor Title</source>
        <translation>Cover Sheet Image</translation>
    </message>
    <message>
        <source>Delete Cover Sheet Header</source>
        <translation>Delete this image?</translation>
    </message>
    <message>
        <source>Delete Cover Sheet Message</source>
        <translation>The image is removed for everybody who uses this computer.</translation>
    </message>
</context>
</TS>
