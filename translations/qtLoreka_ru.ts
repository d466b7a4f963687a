<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>ArtDocument</name>
    <message>
        <source>%1 (at byte %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an art file needs at least one image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>image %1 frame %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frames whose pixel data is far too short for their size are listed but not drawn (%1 of them): %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ArtEditorWidget</name>
    <message>
        <source>Ctrl+wheel zooms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dX</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shown size only; the frame itself keeps its size (Ctrl+wheel over the picture zooms too)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>×</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the frame as data/qtLoreka.export.BMP, .JPG, .PNG and .TIF in the game directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the frame with its palette to the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replaces the frame by the clipboard image (placement values stay)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This frame cannot be shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 pixels, %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>run-length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>raw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not write %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported as BMP, JPG, PNG and TIFF.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ArtHeaderWidget</name>
    <message>
        <source>Palettes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double-click to edit palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ArtWidget</name>
    <message>
        <source>No art file open: double-click one in the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the file&apos;s header marks it as animated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the art file in place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the art file under a new name and go on with that file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit palette %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add or delete image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add or delete frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit frame %1 of image %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arcanum Art files (*.art);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConversationGraph</name>
    <message>
        <source>end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>game code %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConversationView</name>
    <message>
        <source>NPC line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PC response</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>end of conversation or game code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing leads here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>leads to a missing line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>number used twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line has problems</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DamageBanner</name>
    <message>
        <source>%1 is damaged: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;!DOCTYPE HTML PUBLIC &quot;-//W3C//DTD HTML 4.0//EN&quot; &quot;http://www.w3.org/TR/REC-html40/strict.dtd&quot;&gt;
&lt;html&gt;&lt;body style=&quot;font-family:&apos;DejaVu Sans&apos;;&quot;&gt;
&lt;p align=&quot;center&quot; style=&quot;font-size:16pt; font-weight:600;&quot;&gt;qtLoreka&lt;/p&gt;
&lt;p align=&quot;center&quot; style=&quot;font-size:12pt;&quot;&gt;Written by the qtLoreka developers&lt;/p&gt;
&lt;p align=&quot;center&quot; style=&quot;font-size:14pt;&quot;&gt;A visual editor for&lt;/p&gt;
&lt;p align=&quot;center&quot; style=&quot;font-size:14pt;&quot;&gt;Arcanum: of Steamworks and Magick Obscura&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;version&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogEditPalette</name>
    <message>
        <source>Edit palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click a colour to change it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;view&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arcanum .art Palettes (*.aap)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index %1: red %2, green %3, blue %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No frame to show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not save %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogNewStatement</name>
    <message>
        <source>Statement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Condition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogNumType</name>
    <message>
        <source>Number type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the number comes from</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogOptions</name>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arcanum base directory:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm overwrite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm abandon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow export to Lua</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Art</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow export to .bin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Arcanum base directory</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogProtoScript</name>
    <message>
        <source>Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counter0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counter1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counter2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counter3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flag bits</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogueDocument</name>
    <message>
        <source>Saving in %1 would change %2 line(s) of the file that do not read cleanly in it (first: line %3).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 (file line %2): %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 line(s) have problems and are kept as read until edited: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file could not be read as dialogue lines from file line %1 on; that part is not shown but is written back unchanged after the lines</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogueEditWidget</name>
    <message>
        <source>Current file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(unsaved changes)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conversation graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the whole conversation as a graph: where each line leads, and the lines nothing leads to, responses leading nowhere, duplicate numbers and lines with problems in colour. Click a box to open its line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open file...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens a dialogue file (.dlg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the dialogue to a file, in index order with Windows line ends, and opens that file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NPC lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the NPC lines, each with the PC responses that follow it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PC lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the PC lines with the line each one leads to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double-click a line to edit it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Response lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Response</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double-click a line in a tree to edit it here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arcanum Dialogue files (*.dlg);;All files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conversation: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PC response line:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit PC line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit NPC line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;NPC line %1&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> — goes on with line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;PC line %1&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> — answered by NPC line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> — response line %1 is no NPC line of this file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This line has problems:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You changed it, so it is saved from the form&apos;s fields.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until you change it, it is saved exactly as read:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part of this file could not be read as dialogue lines, from &quot;%1&quot; on. It is not shown here, but saving writes it back unchanged after the lines.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogueFile</name>
    <message>
        <source>Line doesn&apos;t contain 6 items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line number %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tooltip text: TODO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all genders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>male only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>female only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid value: only 0, 1 or empty entry allowed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>#</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gender or female line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Int. Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Condition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Response</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid col. id</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogueTestsWidget</name>
    <message>
        <source>Opcode of this test or result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove this row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a row below this one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2, without arguments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2; arguments: %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DlgNpcLineEditWidget</name>
    <message>
        <source>Line number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is generated dialogue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the female variant and the response line of this line. It is ticked for a line that has either.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NOT implemented yet :(</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Male line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the character says (to every player without a female line)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>different female line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the text the character says to a female player instead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Female line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the character says to a female player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Has Goto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The dialogue goes on with another line right after this one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Response line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line the dialogue goes on with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds a result at the top of the list; results happen when the character says this line</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DlgPcLineEditWidget</name>
    <message>
        <source>Line number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changing of line number not yet implemented</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set original data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the line as it is stored again, dropping what you changed in this form since it was last applied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spoken text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the player says</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the player needs at least or at most this intelligence (a maximum is written as a negative number)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum intelligence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum intelligence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Response line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The NPC line that answers this response (0 usually ends the dialogue)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gender</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which player is offered this response</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Female</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Male</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tests</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Requirements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds a test at the top of the list; every test must hold for the response to be offered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Consequences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds a result at the top of the list; results happen when the player chooses this response</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file could not be written</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GameListing</name>
    <message>
        <source>In %1; a save writes a loose copy that overrides it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loose file in %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GameWidget</name>
    <message>
        <source>Filter game files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show only the files whose path contains this text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The module whose archives and folder below modules/ are layered over the game&apos;s data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Module:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the selected file in the page of its kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extract…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the selected files or folders out of the game</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pack folder into archive…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write every file below a folder into a new .dat archive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 files in %2 layers, %3 overriding an earlier layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extracting %1 files…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extract</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extract to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 files written below %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder to pack</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save archive as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arcanum archives (*.dat)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Packing %1 files…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pack</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HexWidget</name>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File position of the selected byte</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LineToolsWidget</name>
    <message>
        <source>Move the line up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the line down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Pick a script in the list on the left, or open one with Ctrl+O.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a message file in the tree on the left, or open one with Ctrl+O.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a dialogue file with Ctrl+O; the game keeps them in data/dlg/.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick an art file in the tree on the left, or open one with Ctrl+O.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a prototype in the list on the left, or open one with Ctrl+O.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Game</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rescan files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File lists rescanned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo history</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;file as opened&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo &amp;history</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter files (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show only the files whose name contains this text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RULES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SEMES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OEMES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DLG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is inside %2: extract it from the Game tab to edit it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: not a file qtLoreka edits (.mes, .dlg, .scr, .art, .pro)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an archive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1[*] — qtLoreka</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>qtLoreka</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File changed on disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 changed on disk. Reload and lose your changes?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 changed on disk and could not be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was reloaded: it changed on disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recover unsaved work</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>qtLoreka did not close cleanly. Unsaved changes of these files were kept:
%1

Restore them (they open modified, not saved) or discard them?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindowClass</name>
    <message>
        <source>qtLoreka</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start a new script file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the selected script file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Art</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> ? </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Del</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MesDocument</name>
    <message>
        <source>1 line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving in %1 would change %2 that were not edited: the file does not read cleanly in this encoding (first: line %3). Choose another encoding to keep them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>entry %1 (line %2): %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 entry cannot be read and is kept as it is: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 entries cannot be read and are kept as they are: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick the file&apos;s encoding below before editing.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MesTableModel</name>
    <message>
        <source>Line %1 cannot be read: %2. It is written back exactly as read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit comment of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit text of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MesWidget</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;File header&lt;/b&gt;&lt;br/&gt;Everything above the first entry. It is written back as it stands here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File header (text above the first entry)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Cell text&lt;/b&gt;&lt;br/&gt;The text of the selected cell. Edit longer and multi-line texts here; the table follows as you type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a cell to edit its text here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Source line&lt;/b&gt;&lt;br/&gt;The selected entry as it will be written to the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File encoding:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;File encoding&lt;/b&gt;&lt;br/&gt;The file is read and saved in this encoding. Choosing another one reads the file again from disk: unsaved changes are dropped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Reload file&lt;/b&gt;&lt;br/&gt;Reads the file again from disk and drops every unsaved change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Save&lt;/b&gt;&lt;br/&gt;Overwrites the file with the table, header and comments, using Windows line ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Save As&lt;/b&gt;&lt;br/&gt;Writes the file under a new name and opens that file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arcanum Mes files (*.mes);;Arcanum Dialogue files (*.dlg);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Source line&lt;/b&gt;&lt;br/&gt;This line could not be read (%1). It is written back exactly as read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit header</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Mesfile</name>
    <message>
        <source>Entry contains no &apos;{&apos; or &apos;}&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index could not be parsed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;{&apos; at index %1 has no matching &apos;}&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>#</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid col. id</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OpcodeWords</name>
    <message>
        <source>value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Page</name>
    <message>
        <source>Cannot open file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 comes from %2. Saving writes it as a loose file in %3, which then overrides the archived copy. Save?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageFrame</name>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the open file in place (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the open file under another name (Ctrl+Shift+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from %1; a save writes it to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaletteFile</name>
    <message>
        <source>a palette file is %1 bytes long, this one %2%3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProtoDamagesWidget</name>
    <message>
        <source>Resistances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Damage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fire</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Electical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Poison</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magic</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProtoDocument</name>
    <message>
        <source>%1 (at byte %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the prototype could not be written</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProtoScriptsWidget</name>
    <message>
        <source>Scripts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The script this event runs and its counters; click to change them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the object runs a script when this event happens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to attach a script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script %1, counters %2, flags 0x%3. Click to change.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProtoWidget</name>
    <message>
        <source>Item index:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Header</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wall data (0)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Static data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Known index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hit points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Material</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Object flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See through</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shoot through</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click through</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invulnerable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Illusion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stoned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portal (1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No additional data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Container (2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scenery (3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trap (17)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movable data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magickal weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Worth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mana store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magick complexicy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effect index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spells mana store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsellable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is magickal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No drop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hexed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can use box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Needs target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Persistent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stolen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No decay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uber</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No NPC pickup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projectile (4)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weapon (5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bonus to hit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magickal bonus to hit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magickal speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magickal range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum strengh required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magickal minimum strengh required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ammo type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ammo usage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Critical hit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magickal critical hit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Critical hit magickal efficiency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Critical miss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magickal critical miss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weapon flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loud</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Silent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two-handed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hand count fixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Throwable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Boomerang</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ammo (6)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Armor (7)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Armor class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magickal armor class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Silent move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magickal silent move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gold (8)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Food (9)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll (10)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key (11)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyring (12)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Schematic (13)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ending line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generic (14)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NPC (15)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arcanum Proto (*.pro);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit prototype</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resistances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magickal resistances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimal damages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximal damages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magickal damages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>the file could not be read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SaveGuard</name>
    <message>
        <source>Unsaved changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save changes to %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save would change the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save anyway?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not save %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScriptDocument</name>
    <message>
        <source>a script&apos;s file name starts with its five-digit number (00042name.scr)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is %1 bytes long, shorter than the %2-byte header</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its header counts %1 lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its header counts %1 lines (%2 bytes) but the file ends at byte %3: the lines from %4 on are missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its header counts %1 lines (%2 bytes) but the file holds %3 bytes: %4 bytes after the last line are not shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1, condition %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1, action %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 lines hold statements no script uses (first: %3); the file is probably not a script</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScriptWidget</name>
    <message>
        <source>Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script number (from the file name)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description (up to 40 characters)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Append a line that always runs an action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Append a line with a condition and two actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arcanum scripts (*.scr);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add IF line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add DO line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move line %1 up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move line %1 down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change statement of line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit operand of line %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextDecoding</name>
    <message>
        <source>Line %1 cannot be read in %2 without change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1 and %2 more lines cannot be read in %3 without change.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TokensWidget</name>
    <message>
        <source>Double-click to choose another statement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;line&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToolTipFiller</name>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: checked sets it, unchecked clears it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: a whole number from %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: a number from %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: one of the values the game knows (type to jump to one)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>arcanum::DatArchive</name>
    <message>
        <source>not an archive: %1 bytes are too few for its trailer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not an archive: the file does not end in an archive trailer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the trailer gives a directory of %1 bytes, which does not fit the %2-byte file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the directory&apos;s own position (%1) lies outside the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the directory at byte %1 is too short for its count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the directory counts %1 entries, more than its %2 bytes can hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the directory ends inside entry %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name of entry %1 (at byte %2) runs past the directory&apos;s end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 lies outside the archive&apos;s data (bytes %2 to %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 claims %2 bytes from %3 packed ones, more than a zlib stream can hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the zlib stream is damaged or does not inflate to its %2 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an empty name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a NUL inside the name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a drive letter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a &quot;..&quot; that leads out of the folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the name holds %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the name is used again (first as entry %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: out of order, the engine&apos;s search will not find it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: flags 0x%2 are neither stored nor compressed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>arcanum::DatWriter</name>
    <message>
        <source>%1: the name holds %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the name is given twice (letter case aside)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Editor for the data files of Arcanum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files to open (.mes, .dlg, .scr, .art, .pro).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>token_controls::TokenEditorNum</name>
    <message>
        <source>Where the number comes from; click to change</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
