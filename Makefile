# The two commands of the README: `make run` and `make test`.
BUILD ?= build
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?= -DCMAKE_BUILD_TYPE=RelWithDebInfo

.PHONY: deps configure build run test bench install clean fuzz

deps:
	@./scripts/install-deps.sh

configure: deps
	@cmake -S . -B $(BUILD) -G Ninja $(CMAKE_FLAGS) >/dev/null

build: configure
	@cmake --build $(BUILD) -j $(JOBS)

run: build
	$(BUILD)/quorix

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS) --timeout 900

bench: deps
	@./scripts/install-deps.sh extra
	@cmake -S . -B build-release -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
	@cmake --build build-release -j $(JOBS) --target quorix_benchmarks
	@build-release/bench/run_benchmarks.sh $(BENCH)

install: build
	cmake --install $(BUILD) $(if $(PREFIX),--prefix $(PREFIX),)

fuzz: deps
	@./scripts/install-deps.sh extra
	./fuzz/run.sh $(FUZZ_SECONDS)

clean:
	rm -rf $(BUILD) build-release
