# Dashtrack: `make run` and `make test` do all set-up on a fresh Debian 12 machine.
BUILD      ?= build
SAN_BUILD  ?= build-sanitize
JOBS       ?= $(shell nproc)
MAKEFLAGS  += --no-print-directory
FUZZ_SECONDS ?= 60

.PHONY: all deps configure build run test test-unit test-sanitize fuzz bench clean package

all: build

deps:
	@scripts/install-deps

configure: deps
	@cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null

build: configure
	@cmake --build $(BUILD) -j $(JOBS)

run: build
	@scripts/run-player $(BUILD)

test: test-unit test-sanitize

test-unit: build
	@cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

# The core (GPS, settings, command-line tool) again under AddressSanitizer and UBSan, built with
# clang so that the same build also makes the fuzzer, which then runs briefly.
test-sanitize: build
	@CC=clang CXX=clang++ cmake -S . -B $(SAN_BUILD) -DCMAKE_BUILD_TYPE=Debug -DDASHTRACK_GUI=OFF \
	  -DDASHTRACK_SANITIZE=ON -DDASHTRACK_FUZZ=ON -DDASHTRACK_BENCH=OFF -DDASHTRACK_SAMPLES=OFF >/dev/null
	@cmake --build $(SAN_BUILD) -j $(JOBS)
	@cd $(SAN_BUILD) && ctest --output-on-failure -j $(JOBS)
	@scripts/run-fuzzer $(SAN_BUILD) $(FUZZ_SECONDS)

bench: build
	@scripts/run-benchmarks $(BUILD)

# The Debian package, $(BUILD)/dashtrack_<version>_<arch>.deb, with dpkg-shlibdeps' dependencies.
package: build
	@cd $(BUILD) && cpack

clean:
	rm -rf $(BUILD) $(SAN_BUILD)
