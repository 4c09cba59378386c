"""Loads reports in a browser and looks at what their scripts made of them:
browser_test.py TOOL EXAMPLES. With TERVIX_PICTURES=FOLDER the pictures are kept there."""

import json
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import projects
from browser import Browser
from picture import Picture, contrast

TOOL, EXAMPLES = (Path(argument).resolve() for argument in sys.argv[1:3])
SAMPLES = ("amp-simulation/amp.tvp", "amp-flat/amp.tvp", "workspace/amp/tvx_sim_1/amp.tvp",
           "workspace/flt/cfg_analog/flt.tvp")
MANY = 1000
NODES_AT_LOAD = 10000  # for that many profiles
FEW_COLOURS = 40  # a page without text and curves has a handful


def told(*arguments):
    """What the tool prints as JSON."""
    run = subprocess.run([TOOL, *map(str, arguments), "--json"], stdout=subprocess.PIPE,
                         check=False)
    return json.loads(run.stdout)


class Reports(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.kept = tempfile.TemporaryDirectory()
        cls.folder = Path(cls.kept.name)
        cls.browser = Browser()

    @classmethod
    def tearDownClass(cls):
        cls.browser.__exit__()
        cls.kept.cleanup()

    def setUp(self):
        self.browser.complaints.clear()

    def tearDown(self):
        self.assertEqual(self.browser.complaints, [])

    # ---- Helpers ----

    def report(self, project):
        page = self.folder / (str(project).strip("/").replace("/", "_") + ".html")
        subprocess.run([TOOL, "report", project, "-o", page], check=True)
        return page

    def open(self, project, wish="", **look):
        self.browser.look(**look)
        self.browser.load(self.report(project), wish)
        self.assertEqual(self.count("html[data-ready]"), 1, "the script came to its end")

    def value(self, expression):
        return self.browser.value(expression)

    def count(self, selector):
        return self.value(f"document.querySelectorAll({json.dumps(selector)}).length")

    def texts(self, selector):
        return self.value(f"[...document.querySelectorAll({json.dumps(selector)})]"
                          ".map(element => element.textContent)")

    def text(self, selector):
        return self.texts(selector)[0]

    def click(self, selector):
        self.value(f"document.querySelector({json.dumps(selector)}).click()")
        self.browser.settle()

    def picture(self, name):
        png = self.browser.picture()
        if folder := os.environ.get("TERVIX_PICTURES"):
            (Path(folder) / f"{name}.png").write_bytes(png)
        return Picture(png)

    def open_all(self):
        self.value("for (const details of document.querySelectorAll('.profile')) details.reveal()")
        self.browser.settle()

    # ---- What there is ----

    def test_samples_show_what_the_project_has(self):
        for sample in SAMPLES:
            with self.subTest(sample):
                project = EXAMPLES / sample
                tree = told("show", project)
                profiles = [profile for schematic in tree["schematics"]
                            for profile in schematic["profiles"]]
                self.open(project)
                self.assertEqual(self.text("h1"), tree["name"])
                self.assertEqual(self.texts(".schematic h3"),
                                 [schematic["name"] for schematic in tree["schematics"]])
                self.assertEqual(self.texts(".profile h4"),
                                 [profile["displayName"] for profile in profiles])
                self.assertEqual(self.count(".schematic > .line .badge"),
                                 sum(schematic["root"] for schematic in tree["schematics"]))
                self.assertEqual(self.count(".profile .badge"),
                                 sum(profile["active"] for profile in profiles))
                self.assertEqual(self.texts(".tile dd"), [str(number) for number in (
                    len(tree["schematics"]), len(profiles), 0, 0, 0)])
                self.assertEqual(self.count(".profile[open]"), 1)
                self.open_all()
                for profile in profiles:
                    item = f'[data-profile="{profile["displayName"]}"]'
                    there = sum(file["exists"] for file in profile["files"]) + 1  # the .sim file
                    self.assertEqual(self.count(f'{item} [aria-label^="Files of"] tbody tr'), there)
                    self.assertGreaterEqual(self.count(f"{item} svg.chart > .curve"), 2)

    def test_findings_are_shown_and_chosen_by_severity(self):
        project = projects.broken(self.folder / "broken", EXAMPLES / "amp-flat")
        findings = told("check", project)["findings"]
        self.open(project, height=1400)
        self.assertEqual(self.texts('#findings [data-column="Code"]'),
                         [finding["code"] for finding in findings])
        messages = self.texts(".message p:first-child")
        self.assertEqual(messages, [finding["message"] for finding in findings])
        self.assertTrue(any(projects.HOSTILE in message for message in messages), messages)
        self.assertEqual(self.count("img"), 0)
        self.assertTrue(self.value("document.title").startswith("amp"))
        self.picture("findings")
        self.click("#findings .switch")
        self.assertEqual(self.texts('#findings [data-column="Severity"]'),
                         [finding["severity"] for finding in findings
                          if finding["severity"] != "error"])
        self.assertGreater(self.count("#findings tbody tr"), 0)

    def test_many_findings_are_shown_bit_by_bit(self):
        self.open(projects.with_missing_libraries(
            self.folder / "missing", EXAMPLES / "amp-flat", 250))
        self.assertEqual(self.count("#findings tbody tr"), 100)
        self.click("#findings .more")
        self.assertEqual(self.count("#findings tbody tr"), 250)
        self.assertEqual(self.count("#findings .more[hidden]"), 1)

    def test_a_project_that_does_not_open_says_why(self):
        project = self.folder / "bad.tvp"
        project.write_text("[")
        self.open(project)
        self.assertEqual(self.texts('[data-column="Code"]'), ["project-unopenable"])
        self.assertEqual(self.count("section"), 1)

    # ---- Curves ----

    def test_every_analysis_of_the_simulator_is_drawn(self):
        project = projects.simulated(self.folder / "simulated", EXAMPLES / "amp-flat")
        self.open(project, height=2600)
        outputs = 'document.querySelectorAll("[data-profile=TOP-tran] .output")'
        self.assertEqual(self.value(f"{outputs}.length"), 3)
        shapes = [self.value(
            f"[...{outputs}[{number}].querySelectorAll('.plot')].map(plot => ["
            "plot.querySelector('h6').textContent,"
            "[...plot.querySelectorAll('figcaption strong')].map(name => name.textContent).join(),"
            "[...plot.querySelectorAll('.chart > .curve')].map(curve => curve.getAttribute('d'))])")
            for number in (1, 2)]
        self.assertEqual([plot[:2] for plot in shapes[0]], [
            ["Operating Point", ""], ["AC Analysis", "Magnitude,Phase"],
            ["Transient Analysis", "Voltage,Current"],
            ["DC transfer characteristic", "Voltage,Current"],
            ["Noise Spectral Density Curves", "Voltage density"], ["Integrated Noise", ""]])
        self.assertEqual(shapes[0], shapes[1], "both formats hold the same")
        self.assertGreater(min(len(path) for plot in shapes[0] for path in plot[2]), 50)
        self.picture("analyses")
        self.value('document.querySelector("[data-profile=TOP-ac] .profile").reveal()')
        self.assertTrue(any("The file is damaged" in remark
                            for remark in self.texts("[data-profile=TOP-ac] .remarks li")))

    def test_frequency_responses_have_a_logarithmic_axis_in_decibels(self):
        self.open(EXAMPLES / "workspace/flt/cfg_analog/flt.tvp", "#profile=ac")
        labels = self.texts("[data-profile=ac] figure:first-of-type svg text")
        for label in ("Frequency (Hz)", "Magnitude (dB)", "10", "100", "1k", "10k", "100k"):
            self.assertIn(label, labels)
        places = self.value(
            "[...document.querySelectorAll('[data-profile=ac] figure:first-of-type .below')]"
            ".slice(0, 5).map(text => Number(text.getAttribute('x')))")
        steps = [right - left for left, right in zip(places, places[1:])]
        self.assertLess(max(steps) - min(steps), 0.5, "a decade is as wide as the next")

    def test_values_are_read_with_pointer_and_keys(self):
        self.open(EXAMPLES / "workspace/flt/cfg_analog/flt.tvp", "#profile=ac")
        item = "[data-profile=ac] "
        self.value(f"document.querySelector('{item}.reader').focus()")
        self.browser.press("Home")
        self.assertEqual(self.text(item + ".position"), "Frequency 10\u00a0Hz")
        self.assertEqual(self.texts(item + ".reading")[1], "0.00\u00a0dB")
        self.browser.press("End")
        self.assertEqual(self.texts(item + ".position"), ["Frequency 100\u00a0kHz"] * 2)
        self.assertIn("Frequency 100", self.value(
            f"document.querySelector('{item}.reader').getAttribute('aria-valuetext')"))
        self.browser.press("Escape")
        self.assertEqual(self.text(item + ".position"), "")
        box = self.value(f"(() => {{ const svg = document.querySelector('{item}svg.chart');"
                         "svg.scrollIntoView({block: 'center'});"
                         "const {left, top, width, height} = svg.getBoundingClientRect();"
                         "return [left + width / 2, top + height / 2]; })()")
        self.browser.point(*box)
        self.browser.settle()
        self.assertRegex(self.text(item + ".position"), r"Frequency [\d.]+\u00a0k?Hz")
        self.assertEqual(self.count(item + ".cursor circle"), 4)

    def test_values_of_any_size_are_drawn_as_they_are(self):
        shape = (0.0, 1.0, -0.5, 0.125)
        sizes = (1e-300, 2e-46, 3e-21, 7e-6, 5.0, 6e12, 9e45, 4e300)
        plots = [[size * value for value in shape] for size in sizes]
        plots += [[1 + 1e-12 * value for value in shape], [-1.7e308, 1.7e308, 1e300]]
        self.open(projects.of_curves(self.folder / "sizes", EXAMPLES / "amp-flat",
                                     [list(enumerate(values)) for values in plots]))
        read = self.value("""JSON.parse(document.getElementById("data").textContent)
            .project.schematics[0].profiles[0].outputs[0].plots
            .map((plot) => [...decoded(plot.charts[0].curves[0])])""")
        for number, (values, found) in enumerate(zip(plots, read, strict=True)):
            near = max(values) / 1e6 - min(values) / 1e6
            for value, drawn in zip(values, found, strict=True):
                self.assertAlmostEqual(value, drawn, delta=near, msg=f"plot {number}")
        heights = self.value("""[...document.querySelectorAll("svg.chart path.curve")]
            .map((path) => path.getAttribute("d").match(/ [0-9.]+/g).join(""))""")
        self.assertEqual(len(set(heights[:len(sizes)])), 1, "the same shape")
        self.assertEqual(self.value("""[...document.querySelectorAll("svg.chart text")]
            .filter((text) => text.getBoundingClientRect().left
                < text.ownerSVGElement.getBoundingClientRect().left)
            .map((text) => text.textContent)"""), [], "written within the chart")

    def test_sweeps_that_begin_again_are_not_joined(self):
        runs = {"rising": [0, 1, 2, 0, 1, 2], "falling": [2, 1, 0, 2, 1, 0], "there and back":
                [0, 1, 2, 3, 2, 1, 0], "two points falling": [5, 0], "two points rising": [0, 5]}
        self.open(projects.of_curves(self.folder / "sweeps", EXAMPLES / "amp-flat",
                                     [[(at, number) for number, at in enumerate(scale)]
                                      for scale in runs.values()]))
        strokes = self.value("""[...document.querySelectorAll("svg.chart path.curve")]
            .map((path) => path.getAttribute("d").match(/M/g).length)""")
        self.assertEqual(dict(zip(runs, strokes, strict=True)),
                         {"rising": 2, "falling": 2, "there and back": 1,
                          "two points falling": 1, "two points rising": 1})

    def test_values_are_written_with_what_unit_and_size_allow(self):
        self.open(EXAMPLES / SAMPLES[0])
        for value, unit, text in (
                (4.28e-9, "V/\u221aHz", "4.28 nV/\u221aHz"), (-0.0125, "A", "\u221212.5 mA"),
                (4e-18, "V\u00b2/Hz", "4e\u221218 V\u00b2/Hz"),  # not the square of an attovolt
                (-3e-40, "V", "\u22123e\u221240 V"), (2.5e30, "V", "2.5e+30 V"), (0, "V", "0 V")):
            written = self.value(f"formatValue({value!r}, {json.dumps(unit)})")
            self.assertEqual(written.replace("\u00a0", " "), text)

    def test_curves_can_be_left_out(self):
        self.open(EXAMPLES / "workspace/flt/cfg_analog/flt.tvp", "#profile=ac")
        curves = "[data-profile=ac] svg.chart > .curve"
        self.assertEqual(self.count(curves), 4)
        self.click("[data-profile=ac] .legend .switch")
        self.assertEqual(self.count(curves), 2, "in both charts of the plot")
        self.assertEqual(self.count("[data-profile=ac] .switch[aria-pressed=false]"), 2)
        self.click("[data-profile=ac] .legend li:nth-child(2) .switch")
        self.assertEqual(self.count(curves), 0)

    # ---- Size ----

    def test_a_thousand_profiles_are_in_the_page_and_found_by_name(self):
        project = projects.large(self.folder / "large", MANY, EXAMPLES / "amp-flat/amp-TOP-ac.dat")
        self.open(project)
        self.assertEqual(self.count(".profile"), MANY)
        self.assertLess(self.count("*"), NODES_AT_LOAD)
        self.assertEqual(self.count(".profile .content"), 1, "of the active profile alone")
        self.value("document.getElementById('filter').focus()")
        self.browser.call("Input.insertText", text="P042")
        self.assertEqual(self.texts(".profile h4"), [f"TOP-p042{digit}" for digit in range(10)])
        self.assertEqual(self.text('#profiles [role="status"]'), "10 of 1,000 profiles")
        self.click(".profile summary")
        self.assertEqual(self.count("[data-profile=TOP-p0420] svg.chart > .curve"), 4)
        self.picture("large")

    # ---- Looks ----

    def test_light_and_dark_differ_and_are_legible(self):
        project = EXAMPLES / "amp-simulation/amp.tvp"
        papers = []
        for dark in (False, True):
            for width, height in ((1280, 900), (390, 844)):
                with self.subTest(dark=dark, width=width):
                    self.open(project, "#profile=TOP-ac", dark=dark, width=width, height=height)
                    name = f"{'dark' if dark else 'light'}-{width}"
                    seen = self.picture(name)
                    self.assertEqual((seen.width, seen.height), (width, height))
                    self.assertGreater(seen.colours(), FEW_COLOURS)
                    self.assertLess(abs(self.value("document.querySelector('[data-profile=TOP-ac]')"
                                                   ".getBoundingClientRect().top")), 2)
                    self.value("scrollTo(0, 0)")
                    self.browser.settle()
                    head = self.picture(name + "-head")
                    self.assertGreater(head.colours(), FEW_COLOURS)
                    papers.append(head.pixel(2, 2))
                    self.assertEqual(self.value("document.documentElement.scrollWidth"), width)
                    self.expect_contrast()
        self.assertEqual(papers[0], papers[1])
        self.assertEqual(papers[2], papers[3])
        self.assertGreater(contrast(papers[0], papers[2]), 12)

    def expect_contrast(self):
        """Of each colour on the paper: 4.5 for text, 3 for curves (WCAG 2, level AA)."""
        self.click(".profile summary")
        colours = self.value("""(() => {
            const probe = document.body.appendChild(document.createElement("span"));
            const seen = name => {
              probe.style.color = `var(${name})`;
              return getComputedStyle(probe).color.match(/[\\d.]+/g).slice(0, 3).map(Number);
            };
            const names = ["--paper", "--raised", "--text", "--faint", "--accent", "--error",
              "--warning", "--note", "--good", "--c0", "--c1", "--c2", "--c3", "--c4", "--c5",
              "--c6"];
            const colours = Object.fromEntries(names.map(name => [name, seen(name)]));
            probe.remove();
            return colours;
        })()""")
        for name, colour in colours.items():
            if name in ("--paper", "--raised"):
                continue
            least = 3 if name.startswith("--c") else 4.5
            for ground in ("--paper", "--raised"):
                self.assertGreaterEqual(contrast(colour, colours[ground]), least, (name, ground))

    def test_the_theme_can_be_switched(self):
        self.open(EXAMPLES / "amp-flat/amp.tvp")
        before = self.picture("switch-before").pixel(2, 2)
        self.click(".theme")
        self.assertEqual(self.text(".theme"), "Light theme")
        after = self.picture("switch-after").pixel(2, 2)
        self.assertGreater(contrast(before, after), 12)
        self.open(EXAMPLES / "amp-flat/amp.tvp", "#theme=dark")
        self.assertEqual(self.picture("switch-wish").pixel(2, 2), after)

    def test_a_dark_page_is_printed_light(self):
        self.open(EXAMPLES / "amp-flat/amp.tvp", "#theme=dark", media="print", dark=True)
        self.assertEqual(self.picture("print").pixel(2, 2), (255, 255, 255))

    def test_nothing_but_its_own_script_and_style_runs(self):
        page = self.report(EXAMPLES / "amp-flat/amp.tvp")
        foreign = self.folder / "foreign.html"
        foreign.write_text(page.read_text().replace(
            "<main", "<script>document.title = 'lost'</script><p style='color: red' "
            "onclick='document.title = 1'></p><img src='https://example.invalid/x'><main"))
        self.browser.load(foreign)
        self.assertEqual(self.count("html[data-ready]"), 1)
        self.assertTrue(self.value("document.title").startswith("amp"))
        blocked = " ".join(self.browser.complaints)
        for directive in ("script-src", "style-src", "default-src"):
            self.assertIn(directive, blocked)
        self.browser.complaints.clear()

    def test_headings_and_tables_are_what_they_look_like(self):
        self.open(EXAMPLES / "amp-simulation/amp.tvp")
        self.open_all()
        levels = self.value("[...document.querySelectorAll('h1,h2,h3,h4,h5,h6')]"
                            ".map(heading => Number(heading.tagName[1]))")
        self.assertEqual(levels.count(1), 1)
        for before, level in zip(levels, levels[1:]):
            self.assertLessEqual(level, before + 1, "no level is left out")
        self.assertEqual(self.count("table:not([aria-label])"), 0)
        self.assertEqual(self.count("thead th:not([scope=col])"), 0)
        self.assertEqual(self.count("tbody tr:not(:has(> th[scope=row]))"), 0)
        self.assertEqual(self.value("document.documentElement.lang"), "en")
        # Each thing that can be pressed has a name, and can be reached with the keyboard.
        self.assertEqual(self.value(
            "[...document.querySelectorAll('button, input, summary')].filter("
            "thing => !(thing.textContent || thing.labels?.length) || thing.tabIndex < 0).length"), 0)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=1)
