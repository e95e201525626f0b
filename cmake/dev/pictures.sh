# shellcheck shell=bash
# How ./dev makes the pictures of the gallery: the gallery paints them itself. Read by ./dev only.

# Some pages show the folders in which the gallery works, so it gets some with plain names.
stage=/tmp/TXGallery

stage_gallery() {
    mkdir "$stage" || die "$stage is in the way"
    trap 'rm -rf "$stage"' EXIT
    mkdir -m 700 "$stage/home" "$stage/run"
    cp -r "build/$preset/gallery"/{bin,Resources,localservers} "$stage"
}

# paint SCALE PALETTE FOLDER [ARGUMENT...]: every page, and the further windows of some
paint() {
    HOME=$stage/home XDG_RUNTIME_DIR=$stage/run LC_ALL=C.UTF-8 TZ=UTC QT_QPA_PLATFORM=offscreen \
        QT_SCALE_FACTOR=$1 QT_SCALE_FACTOR_ROUNDING_POLICY=PassThrough \
        "$stage/bin/TXGallery" --palette "$2" --grab "$3" "${@:4}" \
        >"$stage/painted" 2>"$stage/messages" \
        || die "the gallery could not paint: $(<"$stage/messages")"
    say "$(wc -l <"$stage/painted") pictures are in $3"
}

# The pages alone, as the documents show them.
paint_documents() {
    paint 1 light "$stage/pictures"
    local page
    for page in "$stage/pictures"/*.png; do
        [[ ${page##*/} == *-* ]] || cp "$page" docs/pictures
    done
}

# paint_all FOLDER [LANGUAGE]
paint_all() {
    local folder=$1 language=${2:-en} scale palette
    [[ $folder == /* ]] || folder=$OLDPWD/$folder
    for scale in 1 1.5 2; do
        for palette in light dark contrast; do
            paint $scale $palette "$folder/$language-$palette-$scale" --language "$language"
        done
    done
}

cmd_pictures() {
    if (($#)); then
        [[ $1 == --all && $# -ge 2 && $# -le 3 ]] || die "pictures takes nothing, or --all FOLDER [LANGUAGE]"
    fi
    need_packages "${build_packages[@]}" "${run_packages[@]}"
    need_icon_font
    build --target TXGallery
    stage_gallery
    if (($#)); then
        paint_all "${@:2}"
    else
        paint_documents
        say "the pages are in docs/pictures"
    fi
}
