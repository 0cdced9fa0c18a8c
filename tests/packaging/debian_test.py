"""The package for Debian has all that belongs in it, and works where it is unpacked."""

import re

from support import HEADERS, LIBDIR, MAJOR, ROOT, VERSION, PackagingTest, run

FILES = {
    "usr/bin/s2k2ngt": "-rwxr-xr-x",
    **{f"usr/include/s2k2ngt/{header}": "-rw-r--r--" for header in HEADERS},
    f"usr/{LIBDIR}/cmake/s2k2ngt/s2k2ngtConfig-release.cmake": "-rw-r--r--",
    f"usr/{LIBDIR}/cmake/s2k2ngt/s2k2ngtConfig.cmake": "-rw-r--r--",
    f"usr/{LIBDIR}/cmake/s2k2ngt/s2k2ngtConfigVersion.cmake": "-rw-r--r--",
    f"usr/{LIBDIR}/libs2k2ngt.so -> libs2k2ngt.so.{MAJOR}": "lrwxrwxrwx",
    f"usr/{LIBDIR}/libs2k2ngt.so.{MAJOR} -> libs2k2ngt.so.{VERSION}": "lrwxrwxrwx",
    f"usr/{LIBDIR}/libs2k2ngt.so.{VERSION}": "-rw-r--r--",
    f"usr/{LIBDIR}/pkgconfig/s2k2ngt.pc": "-rw-r--r--",
    f"usr/{LIBDIR}/s2k2ngt/Convertmsg.DLL": "-rw-r--r--",
    "usr/share/bash-completion/completions/s2k2ngt": "-rw-r--r--",
    "usr/share/doc/s2k2ngt/copyright": "-rw-r--r--",
    "usr/share/fish/vendor_completions.d/s2k2ngt.fish": "-rw-r--r--",
    "usr/share/man/man1/s2k2ngt.1": "-rw-r--r--",
    "usr/share/zsh/site-functions/_s2k2ngt": "-rw-r--r--",
    "usr/share/zsh/vendor-completions/_s2k2ngt": "-rw-r--r--",
}


class DebianPackage(PackagingTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.package = ROOT / run(ROOT / "scripts" / "package-debian").strip()
        cls.unpacked = cls.folder / "unpacked"
        run("dpkg-deb", "-x", cls.package, cls.unpacked)

    def field(self, name):
        return run("dpkg-deb", "--field", self.package, name).rstrip("\n")

    def test_has_all_files_and_no_others(self):
        lines = [line.split(maxsplit=5)
                 for line in run("dpkg-deb", "--contents", self.package).splitlines()]
        self.assertEqual({owner for _, owner, *_ in lines}, {"root/root"})
        folders = {mode for mode, *_ in lines if mode.startswith("d")}
        self.assertEqual(folders, {"drwxr-xr-x"})
        files = {name.removeprefix("./"): mode
                 for mode, *_, name in lines if not mode.startswith("d")}
        self.assertEqual(files, FILES)

    def test_tells_what_it_is(self):
        self.assertEqual(self.field("Package"), "s2k2ngt")
        self.assertEqual(self.field("Version"), VERSION)
        self.assertEqual(self.field("Maintainer"), "The s2k2ngt developers")
        self.assertEqual(self.field("Architecture"),
                         run("dpkg", "--print-architecture").strip())
        self.assertRegex(self.field("Description"), r"^Converts SAP2000 V8 text files.*\n ")

    def test_depends_on_the_libraries_of_the_system_alone(self):
        depends = [re.sub(r" \(>= .*\)$", "", package)
                   for package in self.field("Depends").split(", ")]
        self.assertLessEqual({"libc6", "libstdc++6"}, set(depends))
        self.assertLessEqual(set(depends), {"libc6", "libgcc-s1", "libstdc++6"})

    def test_tells_the_system_of_its_library(self):
        control = self.folder / "control"
        run("dpkg-deb", "--control", self.package, control)
        self.assertEqual((control / "shlibs").read_text().strip(),
                         f"libs2k2ngt {MAJOR} s2k2ngt (>= {VERSION})")
        self.assertIn("ldconfig", (control / "postinst").read_text())
        self.assertIn("ldconfig", (control / "postrm").read_text())

    def test_command_runs_where_it_is_unpacked(self):
        self.check_command(self.unpacked / "usr" / "bin" / "s2k2ngt")

    def test_programs_are_stripped(self):
        for name in ("bin/s2k2ngt", f"{LIBDIR}/libs2k2ngt.so.{VERSION}",
                     f"{LIBDIR}/s2k2ngt/Convertmsg.DLL"):
            sections = run("readelf", "--section-headers", "--wide", self.unpacked / "usr" / name)
            self.assertIn(" .text ", sections)
            self.assertNotIn(" .symtab ", sections, name)

    def test_copyright_file_has_the_licence_word_for_word(self):
        text = (self.unpacked / "usr/share/doc/s2k2ngt/copyright").read_text()
        plain = re.sub(r"^ \.?", "", text, flags=re.MULTILINE)
        _, holder, licence = (ROOT / "LICENSE").read_text().split("\n\n", 2)
        self.assertIn(licence, plain)
        self.assertIn("\nCopyright: " + holder.removeprefix("Copyright (c) ") + "\n", plain)
