"""An installation is complete, can be moved, and serves hosts as the guide tells."""

import os
import shutil
import signal
import subprocess

from support import (BUILD, EXAMPLE, HEADERS, HOST_PROGRAMS, LIBDIR, MAJOR, ROOT, VERSION,
                     PackagingTest, attempt, files_below, run)

GUIDE = (ROOT / "docs" / "host_programming.md").read_text(encoding="utf-8")

LOSSY = """\
File lossy.s2k was saved on 5/12/03 at 9:30:00

TABLE:  "FUNCTION - RESPONSE SPECTRUM - USER"
   Name=SITE   Period=0   Accel=0.4
   Name=SITE   Period=1   Accel=0.3

TABLE:  "AREA AUTO MESH ASSIGNMENTS"
   Area=1   MeshType="No Mesh"

TABLE:  "FUNCTION - RESPONSE SPECTRUM - USER"
   Name=SITE   Period=0   Accel=0.5

END TABLE DATA
"""

PROJECT_IN_C = f"""
cmake_minimum_required(VERSION 3.16)
project(in_c LANGUAGES C)
find_package(s2k2ngt {int(MAJOR) + 1} QUIET)
if(s2k2ngt_FOUND)
  message(FATAL_ERROR "a later major version is not asked for in vain")
endif()
find_package(s2k2ngt {VERSION} EXACT REQUIRED)
add_executable(convert "{HOST_PROGRAMS}/convert.c")
target_link_libraries(convert s2k2ngt::s2k2ngt)
"""


class Installation(PackagingTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        run("cmake", "--install", BUILD, "--prefix", cls.folder / "first")
        # Nothing in it may know where it was.
        cls.prefix = cls.folder / "moved" / "s2k2ngt"
        cls.prefix.parent.mkdir()
        (cls.folder / "first").rename(cls.prefix)
        cls.libraries = cls.prefix / LIBDIR
        cls.environment = dict(os.environ, PKG_CONFIG_PATH=str(cls.libraries / "pkgconfig"))

    def build(self, name, *flags):
        """Builds a program by the command of the guide, in a folder of its own."""
        folder = self.folder / self._testMethodName / name
        shutil.copytree(HOST_PROGRAMS, folder)
        command = next(line.strip() for line in GUIDE.splitlines() if line.endswith(f" -o {name}"))
        run("sh", "-euc", " ".join([command, *flags]), cwd=folder, env=self.environment)
        return folder / name

    def with_libraries(self):
        return dict(os.environ, LD_LIBRARY_PATH=str(self.libraries))

    def test_has_all_files_and_no_others(self):
        self.assertEqual(files_below(self.prefix), {
            "bin/s2k2ngt",
            *(f"include/s2k2ngt/{header}" for header in HEADERS),
            f"{LIBDIR}/cmake/s2k2ngt/s2k2ngtConfig-release.cmake",
            f"{LIBDIR}/cmake/s2k2ngt/s2k2ngtConfig.cmake",
            f"{LIBDIR}/cmake/s2k2ngt/s2k2ngtConfigVersion.cmake",
            f"{LIBDIR}/libs2k2ngt.so",
            f"{LIBDIR}/libs2k2ngt.so.{MAJOR}",
            f"{LIBDIR}/libs2k2ngt.so.{VERSION}",
            f"{LIBDIR}/pkgconfig/s2k2ngt.pc",
            f"{LIBDIR}/s2k2ngt/Convertmsg.DLL",
            "share/bash-completion/completions/s2k2ngt",
            "share/doc/s2k2ngt/copyright",
            "share/fish/vendor_completions.d/s2k2ngt.fish",
            "share/man/man1/s2k2ngt.1",
            "share/zsh/site-functions/_s2k2ngt"})

    def test_no_text_in_it_names_a_folder_of_the_machine(self):
        for name in files_below(self.prefix):
            file = self.prefix / name
            if file.suffix in (".cmake", ".pc", ".h"):
                text = file.read_text()
                for folder in (ROOT, BUILD, self.folder):
                    self.assertNotIn(f"{folder}/", text, name)

    def test_command_runs(self):
        self.check_command(self.prefix / "bin" / "s2k2ngt")

    def test_headers_need_nothing_but_themselves(self):
        source = self.folder / "nothing"
        source.write_text("int main(void) { return 0; }\n")  # C forbids a source without anything
        compilers = {"c": ["cc", "-std=c99"], "c++": ["c++", "-std=c++17"]}
        for header in HEADERS:
            languages = ["c", "c++"] if header in ("export.h", "s2k2ngt.h", "version.h") else ["c++"]
            for language in languages:
                done = attempt(
                    *compilers[language], "-x", language, "-Wall", "-Wextra", "-Wpedantic", "-Werror",
                    "-fsyntax-only", "-I", self.prefix / "include", "-include",
                    f"s2k2ngt/{header}", source)
                self.assertEqual(done.returncode, 0, done.stderr)

    def test_project_of_cmake_finds_it(self):
        folder = self.folder / "project"
        shutil.copytree(HOST_PROGRAMS, folder)
        run("cmake", "-S", folder, "-B", folder / "build", "-G", "Ninja",
            f"-DCMAKE_PREFIX_PATH={self.prefix}")
        run("cmake", "--build", folder / "build")
        for program in ("convert_c", "convert_cpp"):
            self.check_host(folder / "build" / program)
        self.check_accounts(folder / "build")

    def check_accounts(self, folder):
        """The programs of the guide that tell what is lost, over a model of which rows are."""
        (folder / "lossy.s2k").write_text(LOSSY)
        done = attempt(folder / "account_c", "lossy.s2k", cwd=folder)
        self.assertEqual((done.returncode, done.stderr), (3, ""))
        self.assertEqual(done.stdout, (
            "FUNCTION - RESPONSE SPECTRUM - USER: 1 of 2 rows are converted as they stand\n"
            "  line 4, Name=SITE: A later block of the same table has written over the row.\n"
            "AREA AUTO MESH ASSIGNMENTS: 0 of 1 rows are converted as they stand\n"
            "  1 rows: The host has no like of this table.\n"
            "FUNCTION - RESPONSE SPECTRUM - USER: 1 of 1 rows are converted as they stand\n"))
        self.assertFalse((folder / "lossy.ngt").exists())
        done = attempt(folder / "account_cpp", "lossy.s2k", cwd=folder)
        self.assertEqual((done.returncode, done.stdout, done.stderr),
                         (3, "1 overwritten-by-later-block\n1 table-refused\n", ""))
        self.assertTrue((folder / "lossy.ngt").exists())

    def test_project_of_c_alone_finds_the_right_version(self):
        folder = self.folder / "project_in_c"
        folder.mkdir()
        (folder / "CMakeLists.txt").write_text(PROJECT_IN_C)
        run("cmake", "-S", folder, "-B", folder / "build", "-G", "Ninja",
            f"-DCMAKE_PREFIX_PATH={self.prefix}")
        run("cmake", "--build", folder / "build")
        self.check_host(folder / "build" / "convert")

    def test_program_in_c_builds_by_pkg_config(self):
        self.check_host(self.build("convert_c"), env=self.with_libraries())

    def test_program_in_cpp_builds_by_pkg_config(self):
        self.check_host(self.build("convert_cpp"), env=self.with_libraries())

    def test_pkg_config_tells_the_version(self):
        version = run("pkg-config", "--modversion", "s2k2ngt", env=self.environment)
        self.assertEqual(version, f"{VERSION}\n")

    def test_program_brings_library_and_catalogue_in_its_folder(self):
        program = self.build("convert_c", "-Wl,-rpath,'$ORIGIN'")
        self.assertIn("-Wl,-rpath,'$ORIGIN'", GUIDE)
        shutil.copy(self.libraries / f"libs2k2ngt.so.{MAJOR}", program.parent)
        shutil.copy(self.libraries / "s2k2ngt" / "Convertmsg.DLL", program.parent)
        self.check_host(program)

    def test_catalogue_beside_the_library_goes_before_the_installed_one(self):
        catalogue = self.build("Convertmsg.DLL")
        prefix = self.folder / "translated"
        shutil.copytree(self.prefix, prefix, symlinks=True)
        shutil.copy(catalogue, prefix / LIBDIR)
        shown = run(prefix / "bin" / "s2k2ngt", "--list-messages")
        self.assertIn("IDS_S2KV8_FRAM_LclAx_Not_Convert\tDie lokalen Achsen der Stäbe", shown)
        self.assertIn("IDS_S2KV8_Not_Convert\tZu dieser Meldung gibt es keinen Text.\n", shown)

    def test_programs_tell_why_a_conversion_failed(self):
        for name in ("convert_c", "convert_cpp"):
            with self.subTest(name):
                program = self.build(name)
                done = attempt(program, "gone.s2k", env=self.with_libraries())
                self.assertEqual(done.returncode, 2)
                self.assertEqual(
                    done.stderr,
                    "gone.s2k: cannot open the input file: No such file or directory\n")

    def test_programs_stop_when_they_are_interrupted(self):
        model = (ROOT / "examples" / f"{EXAMPLE}.s2k").read_bytes()
        for name in ("convert_c", "convert_cpp"):
            with self.subTest(name):
                program = self.build(name)
                pipe = program.parent / f"{name}.s2k"
                os.mkfifo(pipe)
                with subprocess.Popen([program, pipe], env=self.with_libraries(),
                                      stdout=subprocess.DEVNULL, stderr=subprocess.PIPE) as process:
                    with open(pipe, "wb") as source:  # once the run has opened the other end
                        process.send_signal(signal.SIGINT)
                        source.write(model)
                    _, errors = process.communicate(timeout=60)
                self.assertEqual((process.returncode, errors), (1, b"stopped\n"))
                self.assertFalse(pipe.with_suffix(".ngt").exists())
