# Entry points for developers and CI. Every target installs what it needs first,
# so a fresh Debian machine only needs `make run` or `make test`.

PACKAGES := qt6-base-dev qt6-base-dev-tools qt6-5compat-dev qt6-image-formats-plugins \
            libgl-dev ninja-build cmake g++ fonts-dejavu-core xvfb xauth
SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)
JOBS ?= $(shell nproc 2>/dev/null || echo 2)

RELEASE_DIR := build/release
TEST_DIR := build/test
SAMPLE_GAME := examples/sample-game

.PHONY: run test deps release screenshots samples clean bench

run: release
	cd $(SAMPLE_GAME) && ../../$(RELEASE_DIR)/src/qtLoreka

test: deps
	cmake -S . -B $(TEST_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Debug \
	      -DLOREKA_SANITIZE=ON -DLOREKA_WERROR=ON
	cmake --build $(TEST_DIR) -j $(JOBS)
	cd $(TEST_DIR) && QT_QPA_PLATFORM=offscreen \
	    ASAN_OPTIONS=detect_leaks=1 \
	    LSAN_OPTIONS=suppressions=$(CURDIR)/tests/lsan.supp:print_suppressions=0 \
	    UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
	    ctest --output-on-failure -j $(JOBS)

release: deps
	cmake -S . -B $(RELEASE_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Release -DLOREKA_BUILD_TESTS=OFF
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

# Speed of the format models and the message page on large generated inputs (Release, no sanitizers).
# Every figure is printed with its ratio to memcpy over as many bytes and its target; timings are the
# medians of BENCH_REPETITIONS runs.
BENCH_DIR := build/bench
BENCH_REPETITIONS ?= 3

bench: deps
	@dpkg -s libbenchmark-dev >/dev/null 2>&1 || { echo "Installing: libbenchmark-dev"; \
	    $(SUDO) env DEBIAN_FRONTEND=noninteractive apt-get update -q && \
	    $(SUDO) env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends libbenchmark-dev; }
	cmake -S . -B $(BENCH_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Release -DLOREKA_BENCH=ON -DLOREKA_BUILD_TESTS=OFF
	cmake --build $(BENCH_DIR) --target loreka-bench -j $(JOBS)
	cd $(BENCH_DIR) && QT_QPA_PLATFORM=offscreen ./bench/loreka-bench \
	    --benchmark_repetitions=$(BENCH_REPETITIONS) --benchmark_report_aggregates_only=true
