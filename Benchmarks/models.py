"""Models read and drawn by the viewer and by others that are installed, each in a process of its own."""

import math
import os
import random
import shutil
import signal
import statistics
import struct
import subprocess
import tempfile
import time
from pathlib import Path

REPETITIONS = 5
SIZE = "1280x720"
FRAMES = 20
PATIENCE = 600  # seconds


def write_stl(file, triangles):
    """A ring with bumps."""
    around = int(math.sqrt(triangles / 2))

    def point(i, j):
        u, v = (2 * math.pi * (index % around) / around for index in (i, j))
        tube = 10 + 0.6 * math.sin(9 * u) * math.sin(7 * v)
        return (30 + tube * math.cos(v)) * math.cos(u), (30 + tube * math.cos(v)) * math.sin(u), tube * math.sin(v)

    pack = struct.Struct("<12fH").pack
    rows = [[point(i, j) for j in range(around + 1)] for i in range(around + 1)]
    with file.open("wb") as out:
        out.write(bytes(80) + struct.pack("<I", 2 * around * around))
        for row, following in zip(rows, rows[1:]):
            for j in range(around):
                a, b, c, d = row[j], following[j], following[j + 1], row[j + 1]
                out.write(pack(0, 0, 0, *a, *b, *c, 0) + pack(0, 0, 0, *a, *c, *d, 0))


class Step:
    """A part 21 file of as many round bars as wanted, side by side."""

    def __init__(self):
        self.lines = []

    def add(self, text):
        self.lines.append(f"#{len(self.lines) + 1}={text};")
        return f"#{len(self.lines)}"

    def point(self, x, y, z):
        return self.add(f"CARTESIAN_POINT('',({x:.4f},{y:.4f},{z:.4f}))")

    def axes(self, x, y, z, up=1):
        return self.add(f"AXIS2_PLACEMENT_3D('',{self.point(x, y, z)},{self.add(f'''DIRECTION('',(0.,0.,{up}.))''')},"
                        f"{self.add('''DIRECTION('',(1.,0.,0.))''')})")

    def bar(self, x, y, radius=4.0, height=30.0):
        ends = [self.add(f"VERTEX_POINT('',{self.point(x + radius, y, z)})") for z in (0, height)]
        rims = [self.add(f"EDGE_CURVE('',{end},{end},{self.add(f'''CIRCLE('',{self.axes(x, y, z)},{radius})''')},.T.)")
                for end, z in zip(ends, (0, height))]
        along = self.add(f"VECTOR('',{self.add('''DIRECTION('',(0.,0.,1.))''')},1.)")
        line = self.add(f"LINE('',{self.point(x + radius, y, 0)},{along})")
        seam = self.add(f"EDGE_CURVE('',{ends[0]},{ends[1]},{line},.T.)")

        def face(surface, edges, sense):
            used = ",".join(self.add(f"ORIENTED_EDGE('',*,*,{edge},.{way}.)") for edge, way in edges)
            bound = self.add(f"FACE_OUTER_BOUND('',{self.add(f'''EDGE_LOOP('',({used}))''')},.T.)")
            return self.add(f"ADVANCED_FACE('',({bound}),{surface},.{sense}.)")

        faces = [face(self.add(f"CYLINDRICAL_SURFACE('',{self.axes(x, y, 0)},{radius})"),
                      [(rims[0], "T"), (seam, "T"), (rims[1], "F"), (seam, "F")], "T"),
                 face(self.add(f"PLANE('',{self.axes(x, y, 0)})"), [(rims[0], "F")], "F"),
                 face(self.add(f"PLANE('',{self.axes(x, y, height)})"), [(rims[1], "T")], "T")]
        return self.add(f"MANIFOLD_SOLID_BREP('',{self.add(f'''CLOSED_SHELL('',({','.join(faces)}))''')})")

    def write(self, file, solids):
        across = math.ceil(math.sqrt(solids))
        bodies = ",".join(self.bar(10.0 * (index % across), 10.0 * (index // across)) for index in range(solids))
        application = self.add("APPLICATION_CONTEXT('automotive design')")
        product = self.add("PRODUCT('bars','bars','',(" + self.add(f"PRODUCT_CONTEXT('',{application},'mechanical')") + "))")
        formation = self.add(f"PRODUCT_DEFINITION_FORMATION('','',{product})")
        definition = self.add(f"PRODUCT_DEFINITION('','',{formation},"
                              + self.add(f"PRODUCT_DEFINITION_CONTEXT('part definition',{application},'design')") + ")")
        shape = self.add(f"PRODUCT_DEFINITION_SHAPE('','',{definition})")
        units = [self.add("(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(.MILLI.,.METRE.))"),
                 self.add("(NAMED_UNIT(*)PLANE_ANGLE_UNIT()SI_UNIT($,.RADIAN.))"),
                 self.add("(NAMED_UNIT(*)SI_UNIT($,.STERADIAN.)SOLID_ANGLE_UNIT())")]
        exact = self.add(f"UNCERTAINTY_MEASURE_WITH_UNIT(LENGTH_MEASURE(1.E-06),{units[0]},'distance','')")
        context = self.add(f"(GEOMETRIC_REPRESENTATION_CONTEXT(3)GLOBAL_UNCERTAINTY_ASSIGNED_CONTEXT(({exact}))"
                           f"GLOBAL_UNIT_ASSIGNED_CONTEXT(({','.join(units)}))REPRESENTATION_CONTEXT('',''))")
        form = self.add(f"ADVANCED_BREP_SHAPE_REPRESENTATION('',({bodies}),{context})")
        self.add(f"SHAPE_DEFINITION_REPRESENTATION({shape},{form})")
        head = ("ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
                "FILE_SCHEMA(('AUTOMOTIVE_DESIGN'));\nENDSEC;\nDATA;\n")
        file.write_text(head + "\n".join(self.lines) + "\nENDSEC;\nEND-ISO-10303-21;\n")


class Cost:
    """The seconds of the processor and of the clock that a command takes with all processes that it waits for, and the
    memory in MiB that it and what it starts take together when they take most."""

    def __init__(self, runs):
        self.processor, self.clock, self.memory = (statistics.median(column) for column in zip(*runs))

    @classmethod
    def side_by_side(cls, commands, environment):
        """What each of them costs, by its name."""
        runs = {name: [] for name in commands}
        for _ in range(REPETITIONS):
            for name in random.sample(list(commands), len(commands)):
                runs[name].append(cls.once(commands[name], environment))
        return {name: cls(taken) for name, taken in runs.items()}

    @classmethod
    def once(cls, command, environment):
        started = time.monotonic()
        most = 0
        with tempfile.TemporaryFile() as errors, subprocess.Popen(command, env=environment, stdout=subprocess.DEVNULL,
                                                                  stderr=errors) as process:
            ended = 0
            while not ended:
                most = max(most, cls.memory_of(process.pid))
                time.sleep(0.02)
                ended, status, usage = os.wait4(process.pid, os.WNOHANG)
                if not ended and time.monotonic() - started > PATIENCE:
                    os.kill(process.pid, signal.SIGKILL)
            clock = time.monotonic() - started
            process.returncode = os.waitstatus_to_exitcode(status)
            errors.seek(0)
            said = errors.read().decode(errors="replace")
        if process.returncode != 0:
            raise RuntimeError(f"{command[0]} ended with {process.returncode}: {said}")
        return usage.ru_utime + usage.ru_stime, clock, most

    @classmethod
    def memory_of(cls, process):
        """What processes share counts once."""
        try:
            rollup = Path(f"/proc/{process}/smaps_rollup").read_text()
            children = [child for task in Path(f"/proc/{process}/task").iterdir()
                        for child in (task / "children").read_text().split()]
        except OSError:
            return 0
        own = sum(int(line.split()[1]) for line in rollup.splitlines() if line.startswith("Pss:")) / 1024
        return own + sum(cls.memory_of(child) for child in children)


def write_interaction(file, moves):
    """A log of a person who drags the mouse, as f3d plays it."""
    steps = [f"MouseMoveEvent {640 + 6 * step} {360 + 2 * step}" for step in range(1, moves + 1)]
    events = ["LeftButtonPressEvent 640 360", *steps, "LeftButtonReleaseEvent 640 360"]
    file.write_text("# StreamVersion 1\n" + "".join(f"{event} 0 0 0 0 0\n" for event in events))


def version(*command):
    said = subprocess.run(command, capture_output=True, text=True, check=False).stdout.strip().splitlines()
    return next((line for line in said if any(letter.isdigit() for letter in line)), "of unknown version")


def rows(folder):
    """What is measured, as (name, value, goal) where the value is to stay below the goal. Time is that of the clock, on
    two processors, unless the name says otherwise."""
    os.sched_setaffinity(0, sorted(os.sched_getaffinity(0))[:2])
    others = {name: shutil.which(program) for name, program in (("f3d", "f3d"), ("FreeCAD", "freecadcmd"))}
    # FreeCAD says its own with each script, here an empty one, and that of Python where it is asked for it.
    for (name, program), question in zip(others.items(), ("--version", os.devnull)):
        print(f"{name}: {version(program, question) if program else 'not installed, not compared'}")
    environment = {**os.environ, "LIBGL_ALWAYS_SOFTWARE": "1", "QT_QPA_PLATFORM": "xcb"}
    with tempfile.TemporaryDirectory() as name:
        work = Path(name)
        environment.update(XDG_CONFIG_HOME=name, XDG_RUNTIME_DIR=name)
        meshes = {"STL of 1 M triangles": 1_000_000, "STL of 3 M triangles": 3_000_000}
        bars = {"STEP of 500 solids": 500, "STEP of 2,000 solids": 2000}
        small, iges = "STL of 32 triangles", "IGES of 500 solids"
        files = {kind: work / f"mesh{index}.stl" for index, kind in enumerate((*meshes, small))}
        files.update({kind: work / f"bars{count}.step" for kind, count in bars.items()})
        files[iges] = work / "bars.iges"
        for kind, count in (*meshes.items(), (small, 32)):
            write_stl(files[kind], count)
        for kind, count in bars.items():
            Step().write(files[kind], count)
        viewer = [str(folder / "orlo"), "--store", str(work / "store.db")]
        mesh, step = "STL of 1 M triangles", "STEP of 500 solids"
        subprocess.run([*viewer, "--save", files[iges], files[step]], env=environment, check=True)
        read = work / "read.py"
        read.write_text("import FreeCAD, Import, os\ndocument = FreeCAD.newDocument()\n"
                        "Import.insert(os.environ['MODEL'], document.Name)\n"
                        "for each in document.Objects:\n    getattr(each, 'Shape', None) and each.Shape.tessellate(0.075)\n")

        def window(kind, moves=0):
            return [str(folder / "orlo-bench-window"), str(files[kind]), str(moves)]

        def f3d(kind, moves=0):
            log = work / f"log{moves}"
            write_interaction(log, moves)
            return [others["f3d"], "--dry-run", f"--resolution={SIZE.replace('x', ',')}",
                    f"--interaction-test-play={log}", f"--output={work / 'other.png'}", str(files[kind])]

        picture = ["--output", str(work / "picture.png"), "--size", SIZE]
        commands = {(kind, "--render"): [*viewer, "--render", str(files[kind]), *picture]
                    for kind in (*meshes, *bars, iges)}
        commands.update({(kind, "window"): window(kind) for kind in (small, mesh, step)})
        # The first ones find out how long a frame takes, and prepare those that follow.
        first, last = 4, 4 + FRAMES
        if others["f3d"]:
            commands.update({(kind, "f3d"): f3d(kind) for kind in (small, *meshes)})
            commands.update({(kind, program.__name__, moves): program(kind, moves) for kind in (mesh, step)
                             for program in (window, f3d) for moves in (first, last)})
        if others["FreeCAD"]:
            commands.update({(kind, "FreeCAD"): ["env", f"MODEL={files[kind]}", "QT_QPA_PLATFORM=offscreen",
                                                 others["FreeCAD"], str(read)] for kind in (*bars, iges)})
        costs = Cost.side_by_side(commands, environment)

    for (kind, program, *moves), cost in costs.items():
        print(f"{kind}, {program}{''.join(f', orbited {count} times' for count in moves)}: {cost.clock:.2f} s, "
              f"{cost.processor:.2f} s of the processor, {cost.memory:.0f} MiB")

    def ratio(kind, program, other, measure="clock"):
        return getattr(costs[kind, program], measure) / getattr(costs[kind, other], measure)

    def frame(kind, program):
        return (costs[kind, program, last].clock - costs[kind, program, first].clock) / FRAMES

    found = []
    for (what, unit), kinds in ((("meshes", "triangles"), meshes), (("STEP", "solids"), bars)):
        (less, fewer), (more, many) = kinds.items()
        power = (math.log(costs[more, "--render"].processor / costs[less, "--render"].processor)
                 / math.log(many / fewer))
        found.append((f"growth of {what}, {many // fewer} times the {unit}: power of the processor's time", power, 1.1))
    for kind in (mesh, step):
        found.append((f"{kind}: first picture of the window / --render", ratio(kind, "window", "--render"), 1.5))
    if others["f3d"]:
        for kind in meshes:
            found += [(f"{kind} / f3d", ratio(kind, "--render", "f3d"), 1.2),
                      (f"{kind} / f3d: memory", ratio(kind, "--render", "f3d", "memory"), 1.2)]
        # What is allowed for a picture beside f3d, and for that of the window beside it.
        found += [(f"{kind}: first picture of the window / f3d", ratio(kind, "window", "f3d"), 1.8)
                  for kind in (small, mesh)]
        found += [(f"{kind}: a frame of orbiting / f3d", frame(kind, "window") / frame(kind, "f3d"), 0.667)
                  for kind in (mesh, step)]
    if others["FreeCAD"]:
        found += [(f"{kind} / FreeCAD", ratio(kind, "--render", "FreeCAD"), 0.8) for kind in (*bars, iges)]
    return found
