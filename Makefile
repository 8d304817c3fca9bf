# The commands of the README. Each installs what it needs, builds what it needs, and then does it.

PRESET ?= dev
# Where the tools of Qt are that are not on the path.
QT_TOOLS ?= $(addsuffix /,$(wildcard /usr/lib/qt6/bin))
JOBS ?= $(shell nproc 2>/dev/null || echo 2)

.PHONY: help run pictures test check tidy bench docs package fuzz faults soak install format translations clean

help:
	@echo "make run      the workbench, or its batch mode without a display"
	@echo "make pictures the workbench's pictures in docs/, taken again"
	@echo "make test     build everything and run the tests"
	@echo "make check    format, clang-tidy, headers, consumer, sanitizers"
	@echo "make tidy     clang-tidy on every source, however long it takes"
	@echo "make bench    the benchmarks, as ratios"
	@echo "make docs     the reference of every exported class, as web pages"
	@echo "make package  Debian packages"
	@echo "make fuzz     readers of foreign data against made-up data, FUZZ_SECONDS each"
	@echo "make faults   each system call of each way of writing fails once"
	@echo "make soak     the workbench used at random for SOAK_MINUTES (60), and what grew"
	@echo "make translations  brings the texts to translate up to date"
	@echo "make install  into PREFIX (default /usr/local)"

run:
	@.ci/setup build
	@cmake --preset release >/dev/null
	cmake --build --preset release -j $(JOBS)
	@.ci/workbench build/release

pictures:
	@.ci/setup build
	@cmake --preset release >/dev/null
	cmake --build --preset release -j $(JOBS)
	@.ci/pictures build/release

test:
	@.ci/setup build web
	@cmake --preset $(PRESET) >/dev/null
	cmake --build --preset $(PRESET) -j $(JOBS)
	ctest --preset $(PRESET)

check:
	@.ci/setup build web check
	@mkdir -p build
	@JOBS=$(JOBS) .ci/check

tidy:
	@.ci/setup build check
	@cmake --preset ci >/dev/null
	cmake --build --preset ci -j $(JOBS)
	@JOBS=$(JOBS) .ci/tidy

bench:
	@.ci/setup build bench
	@cmake --preset bench >/dev/null
	cmake --build --preset bench -j $(JOBS)
	@benchmarks/run build/bench

docs:
	@.ci/setup docs
	@docs/reference/build build/reference
	@echo "The reference is in build/reference/html/index.html."

package:
	@.ci/setup build web docs package
	@JOBS=$(JOBS) .ci/package

fuzz:
	@.ci/setup build fuzz
	@JOBS=$(JOBS) fuzz/run $(FUZZ_TARGETS)

faults:
	@.ci/setup build
	@cmake --preset dev >/dev/null
	cmake --build --preset dev -j $(JOBS) --target faults
	@build/dev/bin/faults

SOAK_MINUTES ?= 60
SOAK_SEED ?= 1
soak:
	@.ci/setup build
	@cmake --preset dev >/dev/null
	cmake --build --preset dev -j $(JOBS) --target soak
	@build/dev/bin/soak --minutes $(SOAK_MINUTES) --seed $(SOAK_SEED) --csv build/dev/soak.csv

install:
	@.ci/setup build
	@cmake --preset release >/dev/null
	cmake --build --preset release -j $(JOBS)
	cmake --install build/release --prefix $(or $(PREFIX),/usr/local)

format:
	@.ci/setup check
	git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format -i

# Brings translations/*.ts up to date with the sources; what is new in them is then to be translated. English needs
# texts of its own only where a number decides on their form.
# A further language: make translations LANGUAGES="de fr it"
LANGUAGES ?= $(filter-out en,$(patsubst translations/workbench_%.ts,%,$(wildcard translations/workbench_*.ts)))
define LUPDATE
$(QT_TOOLS)lupdate -silent -locations none -no-obsolete $(2) -ts $(LANGUAGES:%=translations/$(1)_%.ts)
$(QT_TOOLS)lupdate -silent -locations none -no-obsolete -pluralonly $(2) -ts translations/$(1)_en.ts
endef

translations:
	@.ci/setup build
	$(call LUPDATE,ozm_widgets,-I include -I src src include platform common plugins)
	$(call LUPDATE,ozm_audit,-I include -I audit/include -I audit/widgets/include audit)
	$(call LUPDATE,workbench,-I include -I apps/workbench apps/workbench)

clean:
	rm -rf build
