"""Conan 2: conan create packages/conan"""
import os
import re

from conan import ConanFile
from conan.tools.cmake import CMake, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load


class Pelmora(ConanFile):
    name = "pelmora"
    description = "Common support library of the medical-training simulators"
    license = "MIT"
    topics = ("units-of-measure", "medical", "simulation")
    package_type = "library"
    settings = "os", "arch", "compiler", "build_type"
    options = {"shared": [True, False]}
    default_options = {"shared": True}
    generators = "CMakeDeps"

    @property
    def _checkout(self):
        return os.path.join(self.recipe_folder, os.pardir, os.pardir)

    def set_version(self):
        project = load(self, os.path.join(self._checkout, "CMakeLists.txt"))
        self.version = re.search(r"(?m)^  VERSION ([0-9.]+)", project).group(1)

    def export_sources(self):
        for pattern in ("CMakeLists.txt", "LICENSE", "*.md", "cmake/*", "pelmora/*", "examples/*", "po/*"):
            copy(self, pattern, self._checkout, self.export_sources_folder)

    def requirements(self):
        if self.settings.os == "Linux":
            self.requires("libxml2/[>=2.9 <3]")
            self.requires("libcurl/[>=7.87 <9]")

    def layout(self):
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        for name in ("TESTS", "EXAMPLES"):
            toolchain.cache_variables[f"PELMORA_{name}"] = False
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        copy(self, "LICENSE", self.source_folder, os.path.join(self.package_folder, "licenses"))
        CMake(self).install()

    def package_info(self):
        # The library's own package serves find_package(Pelmora).
        self.cpp_info.set_property("cmake_find_mode", "none")
        self.cpp_info.builddirs = ["lib/cmake/Pelmora"]
        for name in ("pelmora", "pelmora-c"):
            component = self.cpp_info.components[name]
            component.libs = [name]
            if self.settings.os == "Linux":
                component.requires = ["libxml2::libxml2", "libcurl::libcurl"]
        if not self.options.shared:
            self.cpp_info.components["pelmora"].defines = ["PELMORA_STATIC"]
