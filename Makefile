# Entry points for developers and CI. Every target installs what it needs first,
# so a fresh Debian machine only needs `make run` or `make test`.

PACKAGES := qt6-base-dev qt6-base-dev-tools qt6-5compat-dev qt6-image-formats-plugins \
            libgl-dev ninja-build cmake g++ fonts-dejavu-core xvfb xauth \
            pkg-config libdeflate-dev zlib1g-dev libimagequant-dev libuchardet-dev xdotool \
            qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-translations-l10n
SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)
JOBS ?= $(shell nproc 2>/dev/null || echo 2)

# The fuzzing harnesses need clang and its sanitizer and libFuzzer runtimes.
FUZZ_PACKAGES := clang-14 libclang-rt-14-dev

RELEASE_DIR := build/release
TEST_DIR := build/test
SAMPLE_GAME := examples/sample-game

.PHONY: run test deps release screenshots samples clean bench bench-deps fuzz fuzz-deps fuzz-build fuzz-smoke install package

run: release
	cd $(SAMPLE_GAME) && ../../$(RELEASE_DIR)/src/qtLoreka

# The benchmarks are built here too (not run), so a change that breaks them fails the tests.
test: deps fuzz-deps bench-deps
	cmake -S . -B $(TEST_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Debug \
	      -DLOREKA_SANITIZE=ON -DLOREKA_WERROR=ON -DLOREKA_BENCH=ON
	cmake --build $(TEST_DIR) --target update_translations
	cmake --build $(TEST_DIR) -j $(JOBS)
	cd $(TEST_DIR) && QT_QPA_PLATFORM=offscreen \
	    ASAN_OPTIONS=detect_leaks=1 \
	    LSAN_OPTIONS=suppressions=$(CURDIR)/tests/lsan.supp:print_suppressions=0 \
	    UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
	    ctest --output-on-failure -j $(JOBS)
	$(MAKE) fuzz-smoke

release: deps
	cmake -S . -B $(RELEASE_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Release -DLOREKA_BUILD_TESTS=OFF
	cmake --build $(RELEASE_DIR) --target update_translations
	cmake --build $(RELEASE_DIR) -j $(JOBS)

# One PNG per tab of the main window, grabbed offscreen, plus a real-window shot under Xvfb.
screenshots: release
	rm -rf build/screenshots && mkdir -p build/screenshots
	cd $(SAMPLE_GAME) && QT_QPA_PLATFORM=offscreen \
	    ../../$(RELEASE_DIR)/tools/screenshots/loreka-screenshots $(CURDIR)/build/screenshots
	cd $(SAMPLE_GAME) && xvfb-run -a -s "-screen 0 1400x900x24" \
	    ../../$(RELEASE_DIR)/tools/screenshots/loreka-screenshots --window $(CURDIR)/build/screenshots
	@ls build/screenshots

# Rewrites the bundled sample game with the project's own writers.
samples: release
	$(RELEASE_DIR)/tools/samplegen/loreka-samplegen $(SAMPLE_GAME)

deps:
	@missing=""; for p in $(PACKAGES); do \
	    dpkg -s $$p >/dev/null 2>&1 || missing="$$missing $$p"; done; \
	if [ -n "$$missing" ]; then \
	    echo "Installing:$$missing"; \
	    $(SUDO) env DEBIAN_FRONTEND=noninteractive apt-get update -q && \
	    $(SUDO) env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends $$missing; \
	fi

clean:
	rm -rf build

# `make install PREFIX=/opt/qtloreka` (and DESTDIR=… for a staging root) installs the release build.
PREFIX ?= /usr/local
install: release
	DESTDIR=$(DESTDIR) cmake --install $(RELEASE_DIR) --prefix $(PREFIX) --strip

# A Debian package of both programs, then checked as a user would meet it (see tools/package-check).
PACKAGE_DIR := build/package
VERSION := $(shell grep -oP 'qtLoreka VERSION \K[0-9.]+' CMakeLists.txt)
package: deps
	@$(MAKE) --no-print-directory deps PACKAGES="dpkg-dev file lintian desktop-file-utils appstream man-db"
	cmake -S . -B $(PACKAGE_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Release -DLOREKA_BUILD_TESTS=OFF -DCMAKE_INSTALL_PREFIX=/usr
	cmake --build $(PACKAGE_DIR) --target update_translations
	cmake --build $(PACKAGE_DIR) -j $(JOBS)
	cd $(PACKAGE_DIR) && cpack -G DEB
	tools/package-check $(PACKAGE_DIR)/qtloreka_$(VERSION)_amd64.deb $(SAMPLE_GAME)

# Speed of the format models and the message page on large generated inputs (Release, no sanitizers).
# Every figure is printed with its ratio to memcpy over as many bytes and its target; timings are the
# medians of BENCH_REPETITIONS runs.
BENCH_DIR := build/bench
BENCH_REPETITIONS ?= 3

bench-deps:
	@$(MAKE) --no-print-directory deps PACKAGES="libbenchmark-dev"

bench: deps bench-deps
	cmake -S . -B $(BENCH_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Release -DLOREKA_BENCH=ON -DLOREKA_BUILD_TESTS=OFF
	cmake --build $(BENCH_DIR) --target loreka-bench -j $(JOBS)
	cd $(BENCH_DIR) && QT_QPA_PLATFORM=offscreen ./bench/loreka-bench \
	    --benchmark_repetitions=$(BENCH_REPETITIONS) --benchmark_report_aggregates_only=true

# ---- Fuzzing: one libFuzzer harness per file format reader (see fuzz/) ----
FUZZ_DIR := build/fuzz
FUZZ_SECONDS ?= 60
FUZZ_KINDS := mes-utf8 mes-cp1251 dlg-table dlg scr scr-source art pro aap dat art-folder
# Sprites may be large, but no input of a few kilobytes has a reason to need more than this.
FUZZ_OPTIONS := -rss_limit_mb=2048 -timeout=25 -print_final_stats=1
# The harness of $kind (a shell variable of the loops below): mes-utf8 is fuzz_mes_utf8.
FUZZ_BIN = $(FUZZ_DIR)/fuzz/fuzz_$$(echo $$kind | tr - _)

fuzz-deps:
	@$(MAKE) --no-print-directory deps PACKAGES="$(FUZZ_PACKAGES)"

fuzz-build:
	CC=clang-14 CXX=clang++-14 cmake -S . -B $(FUZZ_DIR) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	    -DLOREKA_FUZZ=ON -DLOREKA_BUILD_TESTS=OFF
	cmake --build $(FUZZ_DIR) -j $(JOBS)

# Each harness runs FUZZ_SECONDS on a working corpus that starts from its seeds and keeps growing
# between runs; crashes, leaks and slow inputs land in build/fuzz/findings/<kind>/.
fuzz: fuzz-deps fuzz-build
	@failed=""; for kind in $(FUZZ_KINDS); do \
	    bin=$(FUZZ_BIN); \
	    mkdir -p $(FUZZ_DIR)/corpus/$$kind $(FUZZ_DIR)/findings/$$kind $(FUZZ_DIR)/logs; \
	    cp -n $(FUZZ_DIR)/fuzz/seeds/$$kind/* $(FUZZ_DIR)/corpus/$$kind/ 2>/dev/null; \
	    echo "== $$kind: $(FUZZ_SECONDS) s"; \
	    $$bin $(FUZZ_OPTIONS) -max_total_time=$(FUZZ_SECONDS) \
	        -artifact_prefix=$(FUZZ_DIR)/findings/$$kind/ $(FUZZ_DIR)/corpus/$$kind \
	        > $(FUZZ_DIR)/logs/$$kind.log 2>&1 || failed="$$failed $$kind"; \
	    grep -E "^#[0-9]+[[:space:]]+DONE|^stat::number_of_executed_units|SUMMARY" $(FUZZ_DIR)/logs/$$kind.log; \
	done; \
	if [ -n "$$failed" ]; then echo "Findings for:$$failed (see $(FUZZ_DIR)/findings and $(FUZZ_DIR)/logs)"; exit 1; fi

# Keeps the harnesses compiling and alive: 10 seconds each on the seeds alone.
fuzz-smoke:
	@if ! command -v clang++-14 >/dev/null 2>&1; then \
	    echo "fuzz-smoke: clang++-14 is not installed, the fuzzing harnesses are skipped"; exit 0; fi; \
	$(MAKE) --no-print-directory fuzz-build && \
	failed=""; for kind in $(FUZZ_KINDS); do \
	    bin=$(FUZZ_BIN); \
	    scratch=$$(mktemp -d); \
	    echo "== fuzz-smoke $$kind"; \
	    $$bin $(FUZZ_OPTIONS) -max_total_time=10 -artifact_prefix=$$scratch/ $$scratch $(FUZZ_DIR)/fuzz/seeds/$$kind \
	        > $$scratch/log 2>&1 || { failed="$$failed $$kind"; cat $$scratch/log; \
	        mkdir -p $(FUZZ_DIR)/findings; cp $$scratch/crash-* $$scratch/timeout-* $$scratch/oom-* $(FUZZ_DIR)/findings/ 2>/dev/null; }; \
	    grep -E "^#[0-9]+[[:space:]]+DONE" $$scratch/log; \
	    rm -rf $$scratch; \
	done; \
	if [ -n "$$failed" ]; then echo "fuzz-smoke failed for:$$failed"; exit 1; fi; \
	echo "fuzz-smoke: every harness ran 10 s on its seeds without a finding"
