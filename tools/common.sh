# What the command scripts share. To be sourced from the project's folder.

. tools/packages.sh

# Runs a command quietly under the name of what it does, and says how long it took. Its output is shown only if
# it fails, and then ends the script.
quietly() {
    local what=$1 log start=$SECONDS
    shift
    log=$(mktemp)
    printf '%s ... ' "$what"
    if "$@" >"$log" 2>&1; then
        echo "$((SECONDS - start)) s"
        rm -f "$log"
    else
        echo "FAILED"
        cat "$log"
        rm -f "$log"
        exit 1
    fi
}

# Configures a preset and builds it, or only the named target of it.
build() {
    quietly "Building ${2:-everything} in build/$1" \
        bash -c "cmake --preset $1 && cmake --build --preset $1 ${2:+--target $2}"
}
