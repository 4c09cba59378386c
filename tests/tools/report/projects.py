"""Projects of which reports are made, beyond the samples."""

import shutil
import subprocess
from pathlib import Path

SIM = """ProfileName = "{name}"
ProfileFile = "amp-TOP-{name}.sim"
DesignFile = "amp.dsn"
ProjectFile = "amp.tvp"
RootSchematics = "TOP"
DataFile = "./amp-TOP-{name}.dat"
OutFile = "./amp-TOP-{name}.out"
"""

RAW = """Title: sizes
Plotname: {name}
Flags: real
No. Variables: 2
No. Points: {count}
Variables:
\t0\ttime\ttime
\t1\tv(x)\tvoltage
Values:
{rows}
"""

# All kinds of analysis of ngspice, in both of its formats and in one file.
NETLIST = """filter
V1 in 0 DC 1 AC 1 SIN(0 1 1k)
R1 in out 1k
C1 out 0 100n
.control
op
ac dec 10 1 1meg
tran 1u 5m
dc V1 0 5 0.1
noise v(out) V1 dec 10 10 100k
set filetype=binary
write amp-TOP-tran.binary.raw op1.all ac1.all tran1.all dc1.all noise1.all noise2.all
set filetype=ascii
write amp-TOP-tran.text.raw op1.all ac1.all tran1.all dc1.all noise1.all noise2.all
quit
.endc
.end
"""


def plot_of(name, points):
    return RAW.format(name=name, count=len(points),
                      rows="\n".join(f"{number}\t{at!r}\n\t{value!r}"
                                     for number, (at, value) in enumerate(points)))


def of_curves(folder, sample, curves):
    """A sample whose active profile has a plot for each list of points."""
    shutil.copytree(sample, folder)
    (folder / "amp-TOP-tran.dat").write_text("".join(
        plot_of(f"plot {number}", points) for number, points in enumerate(curves)))
    return folder / "amp.tvp"


def large(folder, count, curves):
    """A project of count profiles, each with the curves of a file."""
    folder.mkdir(parents=True)
    names = [f"p{number:04}" for number in range(count)]
    for name in names:
        (folder / f"amp-TOP-{name}.sim").write_text(SIM.format(name=name))
        shutil.copy(curves, folder / f"amp-TOP-{name}.dat")
    (folder / "amp.dsn").write_text('[Design]\nSchematics = ["TOP"]\nRoot = "TOP"\n')
    files = ", ".join(f'"./amp-TOP-{name}.sim"' for name in names)
    (folder / "amp.tvp").write_text(
        '["Design Resources"]\nFiles = ["amp.dsn"]\n["Simulation Profiles"]\n'
        f'Active = "TOP-{names[-1]}"\nFiles = [{files}]\n')
    return folder / "amp.tvp"


def simulated(folder, sample):
    """A sample whose profile tran has the results of every analysis, and ac damaged ones."""
    shutil.copytree(sample, folder)
    netlist = folder / "all.cir"
    netlist.write_text(NETLIST)
    subprocess.run(["ngspice", "-b", "-n", netlist.name], cwd=folder, check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    whole = (folder / "amp-TOP-tran.binary.raw").read_bytes()
    (folder / "amp-TOP-ac.cut.raw").write_bytes(whole[:len(whole) // 2])
    return folder / "amp.tvp"


def with_missing_libraries(folder, sample, count):
    """A sample with as many findings."""
    shutil.copytree(sample, folder)
    project = folder / "amp.tvp"
    missing = ", ".join(f'"gone{number}.lib"' for number in range(count))
    project.write_text(project.read_text().replace('"npn.lib"', f'"npn.lib", {missing}'))
    return project


HOSTILE = '</script><script>document.title="lost"</script><img src=x onerror=document.title="lost">'


def broken(folder, sample):
    """A sample with a finding of each severity, one of them about a hostile name."""
    shutil.copytree(sample, folder)
    project = folder / "amp.tvp"
    text = project.read_text()
    escaped = HOSTILE.replace('"', '\\"')
    project.write_text(text.replace('"npn.lib"', f'"npn.lib", "{escaped}"'))
    (folder / "npn.lib.bak").write_text("")
    outside = Path(folder).parent / "outside.lib"
    outside.write_text("* none of the project\n")
    with open(folder / "amp-TOP.net", "a", encoding="utf-8") as netlist:
        netlist.write(f'.lib "{outside}"\n')
    return project
