<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>ColorOptions</source>
        <translation>Color Options</translation>
    </message>
    <message>
        <source>PrinterDefault</source>
        <translation>Printer default</translation>
    </message>
    <message>
        <source>Field Default</source>
        <extracomment>In a small field without a number: the printer decides</extracomment>
        <translation>Default</translation>
    </message>
    <message>
        <source>Before:</source>
        <translation>Before</translation>
    </message>
    <message>
        <source>After:</source>
        <translation>After</translation>
    </message>
    <message>
        <source>Lightness:</source>
        <translation>Lightness</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Saturation:</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Cyan-Red:</source>
        <translation>Cyan to red</translation>
    </message>
    <message>
        <source>Magenta-Green:</source>
        <translation>Magenta to green</translation>
    </message>
    <message>
        <source>Yellow-Blue:</source>
        <translation>Yellow to blue</translation>
    </message>
    <message>
        <source>Reset Adjustments</source>
        <translation>Reset Adjustments</translation>
    </message>
    <message>
        <source>RGB Images Profile:</source>
        <translation>RGB images profile</translation>
    </message>
    <message>
        <source>RGB Text and Graphics Profile:</source>
        <translation>RGB text and graphics profile</translation>
    </message>
    <message>
        <source>CMYK Images Profile:</source>
        <translation>CMYK images profile</translation>
    </message>
    <message>
        <source>CMYK Text and Graphics Profile:</source>
        <translation>CMYK text and graphics profile</translation>
    </message>
    <message>
        <source>Gray Images Profile:</source>
        <translation>Gray images profile</translation>
    </message>
    <message>
        <source>Gray Text and Graphics Profile:</source>
        <translation>Gray text and graphics profile</translation>
    </message>
    <message>
        <source>Destination Profile:</source>
        <translation>Destination profile</translation>
    </message>
    <message>
        <source>Built-in Profile</source>
        <extracomment>%1: the number of the printer's profile</extracomment>
        <translation>Built-in profile %1</translation>
    </message>
    <message>
        <source>Named Profile...</source>
        <translation>Named Profile…</translation>
    </message>
    <message>
        <source>Named Curve...</source>
        <translation>Named Curve…</translation>
    </message>
    <message>
        <source>Image Rendering:</source>
        <translation>Image rendering intent</translation>
    </message>
    <message>
        <source>Text Rendering:</source>
        <translation>Text rendering intent</translation>
    </message>
    <message>
        <source>Graphic Rendering:</source>
        <translation>Graphics rendering intent</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perceptual</translation>
    </message>
    <message>
        <source>Relative Colorimetric</source>
        <translation>Relative colorimetric</translation>
    </message>
    <message>
        <source>Saturation Intent</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Absolute Colorimetric</source>
        <translation>Absolute colorimetric</translation>
    </message>
    <message>
        <source>Other Value</source>
        <extracomment>%1: a number that stands for no choice that this panel knows</extracomment>
        <translation>Value %1</translation>
    </message>
    <message>
        <source>Not On This Printer</source>
        <extracomment>%1: an item of a pop-up, for a value that the printer does not offer</extracomment>
        <translation>%1, not on this printer</translation>
    </message>
    <message>
        <source>Trapping:</source>
        <translation>Trapping</translation>
    </message>
    <message>
        <source>Fast Direction:</source>
        <translation>Trapping, fast direction</translation>
    </message>
    <message>
        <source>Slow Direction:</source>
        <translation>Trapping, slow direction</translation>
    </message>
    <message>
        <source>Trapping Range</source>
        <translation>0 to 20</translation>
    </message>
    <message>
        <source>Black Overprint:</source>
        <translation>Black overprint</translation>
    </message>
    <message>
        <source>Tone Reproduction Curve:</source>
        <translation>Tone reproduction curve</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
</context>
</TS>
