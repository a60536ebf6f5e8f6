// The documentation's text: every menu item, the typical use, notes and the version history.
#include "ui/help/documentation_pages.h"

namespace flexley {

namespace {

constexpr const char* kMenuItems = R"(
<h2>Description of Menu Items</h2>
<p>Flexley has two main windows. The <b>Loading Screen</b> shows the beam and its numbered
features and stays open for the whole session; the <b>Calculations Screen</b> shows the result
plots after a calculation. Each has its own menus, described below in menu order.</p>

<h3><a name="loading"></a>Loading Screen</h3>
<h4>File</h4>
<dl>
<dt><b>Save Load Configuration</b> (Ctrl+S)</dt>
<dd>Saves the beam to its load file (<tt>.lod</tt>) without asking when it has been saved or
opened before; a new beam opens the Save dialog instead.</dd>
<dt><b>Save As</b></dt>
<dd>Opens the Save dialog to save the beam under a new name or in another folder. The saved file
becomes the current file, named in the window title.</dd>
<dt><b>Open Load Configuration</b> (Ctrl+O)</dt>
<dd>Opens the Open dialog. Loading a file replaces the beam on the screen. A file that cannot be
read is refused with the line and the reason, and the beam is then empty.</dd>
<dt><b>Import Version 1 File</b></dt>
<dd>Reads a load file written by version 1 of the program. Save it afterwards to keep it in the
current format.</dd>
<dt><b>Print Load Configuration</b> (Ctrl+P)</dt>
<dd>Opens the Print dialog for the beam properties, the load configuration as text (with the
support reactions once a calculation has been run) and a picture of the Loading Screen. The
report can go to a printer, to a PDF file or to a text file.</dd>
<dt><b>Preferences</b></dt>
<dd>The beam definition file of standard sections, the working files folder where the file
dialogs look first, the units a new beam starts in, whether plots are drawn as outlines only, and
whether slope and deflection are calculated exactly (recommended) or by the trapezoid method.</dd>
<dt><b>Recent files</b></dt>
<dd>The last load files saved or opened, newest first; choose one to open it again.</dd>
<dt><b>Exit Flexley</b> (Ctrl+X)</dt>
<dd>Saves the preferences and ends the program. Save the beam first: it is not saved for
you.</dd>
</dl>
<h4>Feature</h4>
<dl>
<dt><b>Add Feature</b></dt>
<dd><b>Add Point Load</b> (Ctrl+F1), <b>Add Dist. Load</b> (Ctrl+F2), <b>Add Moment</b> (Ctrl+F3)
and <b>Add Support</b> (Ctrl+F4) open the dialog for that kind of feature. Type the magnitude and
the position in the units offered (pounds or kilograms, inches or feet, newtons or metres) and
add it. Each feature is drawn with a
number, which names it in the Edit and Remove commands. A beam holds up to 50 point loads,
50 distributed loads, 50 moments and 20 supports, at most 2 of them fixed (cantilever)
supports, and 170 features in all.</dd>
<dt><b>Edit Feature</b> (Ctrl+E)</dt>
<dd>Asks for a feature number and opens that feature's dialog with its values, to change
them.</dd>
<dt><b>Remove Feature</b> (Del)</dt>
<dd>Asks for a feature number and removes that feature. The other features keep their
numbers.</dd>
</dl>
<h4>Beam</h4>
<dl>
<dt><b>Properties</b></dt>
<dd>The moment of inertia I, the modulus of elasticity E and the distance c from the neutral axis
to the farthest fibre. They can be typed, calculated for a round or rectangular section, solid or
tube, with the moment of inertia calculator, or taken from the list of standard sections
(W and S beams, channels, angles and your own sections) in the beam definition file.</dd>
<dt><b>Reinitialize</b></dt>
<dd>Removes every feature and the section properties. You are asked whether to change the beam
length: Yes opens the start dialog for new units and a new length, No keeps the empty beam.</dd>
</dl>
<h4>Calculate</h4>
<dl>
<dt><b>Calculate Stress and Deflection</b> (Ctrl+R)</dt>
<dd>Solves the support reactions, writes them beside the supports, computes the bending moment,
stress, slope and deflection at every calculation point and opens the Calculations Screen. The
beam needs supports that hold it and its section properties.</dd>
<dt><b>Calculate Support Reactions Only</b></dt>
<dd>Solves and shows the support reactions only; no section properties are needed.</dd>
<dt><b>Change Resolution</b></dt>
<dd>The number of intervals the beam is divided into for the calculation: a whole number from
10 to 200,000 (10,000 when the program starts). See the Miscellaneous Notes.</dd>
</dl>
<h4>Display</h4>
<dl>
<dt><b>Redraw</b></dt>
<dd>Draws the beam picture again.</dd>
<dt><b>Change Display Significant Figures</b></dt>
<dd>How many significant figures (1 to 15) every number on the screens and in the report shows.
Calculations always use full precision.</dd>
</dl>
<h4>Units</h4>
<dl>
<dt><b>Convert to Metric</b>, <b>Convert to English</b></dt>
<dd>Converts the whole beam, its features and its section properties into the other unit
system. Only the conversion into the other system is offered.</dd>
</dl>
<h4>Help</h4>
<dl>
<dt><b>Documentation</b> (F1)</dt><dd>This window.</dd>
<dt><b>About Flexley</b></dt>
<dd>The version, the system information and a slide show of the program at work.</dd>
</dl>

<h3><a name="calculations"></a>Calculations Screen</h3>
<p>Three plots, top to bottom: bending moment, bending stress and deflection along the beam.
Rest the mouse on a plot to read the value at the nearest calculated point. While the screen is
open it follows the beam: every change on the Loading Screen calculates again, and a beam that
cannot be calculated shows why instead of the plots.</p>
<h4>File</h4>
<dl>
<dt><b>Return to Loading</b> (Alt+Backspace)</dt>
<dd>Closes the Calculations Screen; the Loading Screen remains.</dd>
<dt><b>Print Load Cfg. and Calculations</b> (Ctrl+P)</dt>
<dd>Opens the Print dialog with everything of the Loading Screen's print command, and also the
maximum values, the values at a point (type the position and choose its unit) and a picture of
the plots.</dd>
</dl>
<h4>Calculate</h4>
<dl>
<dt><b>Show Maximum Values</b> (Ctrl+M)</dt>
<dd>The largest bending moment, stress, deflection and slope, each with its position.</dd>
<dt><b>Show Values at a Point</b></dt>
<dd>Type a position along the beam to read the moment, stress, deflection and slope at the
nearest calculated point.</dd>
</dl>
<h4>Display</h4>
<dl>
<dt><b>Redraw</b></dt><dd>Draws the Loading Screen's beam picture again.</dd>
<dt><b>Change Display Significant Figures</b></dt>
<dd>As on the Loading Screen; the plots are drawn again with the new precision.</dd>
</dl>
<h4>Units</h4>
<dl>
<dt><b>Convert to Metric</b>, <b>Convert to English</b></dt>
<dd>Converts the beam and calculates again, so the plots read in the new units.</dd>
</dl>
<h4>Help</h4>
<dl>
<dt><b>Documentation</b> (F1), <b>About Flexley</b></dt><dd>As on the Loading Screen.</dd>
</dl>
)";

constexpr const char* kSuggestedUse = R"(
<h2>Suggested Use</h2>
<ol>
<li><b>Start.</b> The start dialog asks for the unit system, English (inches and pounds) or
metric (metres and newtons), and the beam length. <b>Retrieve Load File</b> opens a saved beam
instead.</li>
<li><b>Add loads and supports</b> from the Feature menu. Each feature appears on the beam with
its number, its value and its position. A beam needs enough supports to hold it: two simple
supports, or one fixed support, or more; Flexley solves statically indeterminate beams too.</li>
<li><b>Enter the section properties</b> with Beam &gt; Properties: type I, E and c, calculate
them for a simple section, or choose a standard section.</li>
<li><b>Save</b> the load configuration with File &gt; Save Load Configuration.</li>
<li><b>Calculate</b> with Calculate &gt; Calculate Stress and Deflection. The support reactions
appear beside the supports on the Loading Screen and the Calculations Screen opens with the
plots.</li>
<li><b>Read the results</b>: Calculate &gt; Show Maximum Values gives the largest moment,
stress, deflection and slope; Show Values at a Point gives them anywhere along the beam.</li>
<li><b>Check them.</b> If a result looks odd, for example a deflection at a support that is not
close to zero with the trapezoid method, raise the resolution and calculate again.</li>
<li><b>Print the report</b> with File &gt; Print Load Cfg. and Calculations: tick the sections
you want, give the report a title and choose <b>Print</b>, <b>Save as PDF...</b> or
<b>Save as Text...</b>.</li>
</ol>
<p>Example: a metric beam of 5 m with a 2000 N point load at 2.5 m and simple supports at 0 and
5 m has reactions of 1000 N at each support and a maximum moment of 2500 N-m at x = 2.5 m.</p>
)";

constexpr const char* kNotes = R"(
<h2>Miscellaneous Notes</h2>
<h3>Resolution</h3>
<p>The beam is divided into N equal intervals, N being the resolution, and the results are
calculated at the N + 1 points between them. Maximum values and values at a point are read at
the nearest calculated point, so a higher resolution places them more closely. 5,000 to 50,000
is standard; 200,000 is the limit.</p>
<h3>Accuracy</h3>
<p>By default slope and deflection are calculated exactly: between the points where loads and
supports act the bending moment is a polynomial, which is integrated in closed form, so every
support shows zero deflection at any resolution. The trapezoid method (chosen in File &gt;
Preferences) integrates the moment numerically at the calculation points, as earlier versions
did. Its small errors can show as a small non-zero deflection at a support, and a support or
couple between two calculation points is taken at the nearest one. Raising the resolution makes
these errors smaller. When its iteration does not settle, you are asked whether to continue;
answering No keeps the results so far and says so.</p>
<h3>Sign conventions</h3>
<p>Positions are measured from the left end of the beam. Point and distributed loads act
downwards when positive and upwards when negative; support reactions are positive upwards. The
bending moment is positive where the beam sags and negative where it hogs (over a fixed support
or an inner support), and a positive couple lowers the bending moment to its right by its
magnitude. Deflection is positive upwards, so a beam under downward loads shows negative
deflections.</p>
<h3>Units</h3>
<p>English beams work in inches and pounds: moments in lb.-in. (lb.-ft. where larger), stress in
psi or ksi, I in in^4. Metric beams work in metres and newtons: moments in N-m, stress in Pa, kPa
or MPa, deflection in mm, I in mm^4 in the properties dialog. Loads may be typed in kilograms
(converted at 9.80665 N per kg) or in feet, and each feature is shown in the units it was
entered in. Every displayed number is rounded to the chosen significant figures.</p>
<h3>Preferences</h3>
<p>The preferences are kept in <tt>beams.prf</tt> in your configuration folder (usually
<tt>~/.config/flexley/</tt>), with the recent files and the integration method in
<tt>flexley.prf</tt> beside it. Both are written when the program ends. Without a readable
<tt>beams.prf</tt> you are told so at start and the defaults hold: English units, working files
in the folder the program was started in, and the standard-section list installed with the
program.</p>
<h3>Load files</h3>
<p>Load configuration files (<tt>.lod</tt>) are plain text. Double-click one in your file
manager to open it in Flexley, or start the program as <tt>flexley beam.lod</tt>. The
<tt>examples</tt> folder installed with the program holds sample beams.</p>
<h3>flexley-cli</h3>
<p><tt>flexley-cli</tt> runs the same calculation on a saved load file without any window:
<tt>flexley-cli analyze beam.lod</tt> prints the reactions and maximum values (<tt>--json</tt>
for a program to read), <tt>table</tt> prints every calculation point as CSV, <tt>report</tt>
prints the text report, and <tt>convert</tt> converts a file between unit systems or from version
1. <tt>flexley-cli --help</tt> lists the options.</p>
)";

constexpr const char* kVersions = R"(
<h2>Version History</h2>
<dl>
<dt><b>Version 2.2</b></dt>
<dd>Slope and deflection calculated exactly by default, with zero deflection at every support at
any resolution; the trapezoid method remains as a preference. Reports saved as PDF or as text
as well as printed. Recent files in the File menu. Values on the plots shown under the mouse.
<tt>flexley-cli</tt> for calculations and reports without a window. Load files open from the
desktop.</dd>
<dt><b>Version 2.0</b></dt>
<dd>Statically indeterminate beams with any number of simple supports and up to two fixed
supports, solved as one linear system. Distributed loads that vary linearly. Metric units.
Standard sections from a beam definition file, and the moment of inertia calculator. Printed
reports.</dd>
<dt><b>Version 1</b></dt>
<dd>The first version. Its load files can still be imported.</dd>
</dl>
)";

}  // namespace

const std::array<DocumentationPage, 4>& documentation_pages() {
    static const std::array<DocumentationPage, 4> pages{{
        {"Description of Menu Items", "menuitems", kMenuItems},
        {"Suggested Use", "suggesteduse", kSuggestedUse},
        {"Miscellaneous Notes", "notes", kNotes},
        {"Version History", "history", kVersions},
    }};
    return pages;
}

}  // namespace flexley
