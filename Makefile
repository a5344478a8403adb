# The two set-up commands of the README: `make run` and `make test`.
.PHONY: deps run test bench format studio cli clean

JOBS ?= $(shell nproc)
SAMPLE ?= samples/geometry/geometry.svproj

deps:
	@bash scripts/install-deps.sh

build/release/build.ninja: | deps
	cmake --preset release

build/asan/build.ninja: | deps
	cmake --preset asan

# Opens the studio on the bundled sample project.
run: deps build/release/build.ninja
	cmake --build build/release -j $(JOBS)
	@if [ -x build/release/src/studio/scrivara-studio ]; then \
	  build/release/src/studio/scrivara-studio $(SAMPLE); \
	else \
	  build/release/src/cli/scrivara tree $(SAMPLE); \
	fi

# Library tests under AddressSanitizer and UBSan, then the studio tests in the plain build.
test: deps build/asan/build.ninja
	cmake --build build/asan -j $(JOBS)
	ctest --preset asan -j $(JOBS)
	@if [ -f src/studio/CMakeLists.txt ]; then \
	  cmake --preset release >/dev/null && \
	  cmake --build build/release -j $(JOBS) --target sv_studio_tests && \
	  ctest --preset release -j $(JOBS) -L studio; \
	fi

bench: deps build/release/build.ninja
	cmake --build build/release -j $(JOBS)
	@for b in build/release/bench/sv_bench_*; do [ -x "$$b" ] && "$$b"; done

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf build
