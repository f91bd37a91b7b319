# Fernhollow: `make play` and `make test` do all the set-up on a fresh Debian machine.
BUILD_DIR ?= build
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?= -DCMAKE_BUILD_TYPE=RelWithDebInfo

.PHONY: all deps configure build play test bench clean

all: build

deps:
	@bash scripts/install-deps.sh

$(BUILD_DIR)/CMakeCache.txt: | deps
	CXX=clang++ cmake -S . -B $(BUILD_DIR) $(CMAKE_FLAGS)

configure: deps $(BUILD_DIR)/CMakeCache.txt

build: configure
	cmake --build $(BUILD_DIR) -j $(JOBS)

play: build
	@bash scripts/play.sh $(BUILD_DIR)/stage

test: build
	cd $(BUILD_DIR) && QT_QPA_PLATFORM=offscreen SDL_AUDIODRIVER=dummy ctest --output-on-failure -j $(JOBS)

bench: build
	cmake --build $(BUILD_DIR) -j $(JOBS) --target fhbench
	$(BUILD_DIR)/bench/fhbench

clean:
	rm -rf $(BUILD_DIR)
