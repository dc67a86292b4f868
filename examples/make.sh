#!/usr/bin/env bash
# Makes the example projects and their results:
#
#   examples/make.sh build/release/bin/tarnvik-check FOLDER
#
# FOLDER gets every NAME.tnvik with its readable summary (.txt) and its JSON (.json), the results of the batch inputs, and
# status.txt with the exit status of each.
set -euo pipefail

if [ $# -ne 2 ]; then
    echo "usage: $0 TARNVIK-CHECK FOLDER" >&2
    exit 2
fi
tool=$(realpath "$1")
inputs=$(realpath "$(dirname "$0")")
mkdir -p "$2"
cd "$2"
: >status.txt

# keep FILE ARGUMENT...: runs the tool, keeps what it prints in FILE, and its exit status.
keep() {
    local file=$1 status=0
    shift
    "$tool" "$@" >"$file" || status=$?
    printf '%s %s\n' "$file" "$status" >>status.txt
}

# project NAME LANGUAGE NAME=VALUE...: writes the inputs into a new project, saves it, and checks what was saved.
project() {
    local name=$1 language=$2
    shift 2
    "$tool" --lang "$language" "${@/#/--set=}" --save "$name.tnvik" >/dev/null || true
    keep "$name.txt" "$name.tnvik"
    keep "$name.json" --json "$name.tnvik"
}

# batch NAME FIELDS: the inputs of NAME.jsonl, and those fields of each result.
batch() {
    keep "$1.results.jsonl" --lang Eng --batch --fields "$2" <"$inputs/$1.jsonl"
}

# Rows of the lists count from 0: Mat_index 5 is C24 of the delivered table, Bolt_index 1 is M16x4.6, Ant_index 3 are four
# bolts, Bulldog_index 2 is D75. Lastvar 3 is the medium-term action, Klima the service class.

project heel-joint Eng Prosjekt="Roof truss" Id="Heel joint" \
    Con_type=1 alp=25 P=6 Lastvar=3 Klima=1 Mat_index=5 \
    Standard=false Txt_b1=48 Txt_h1=198 Txt_b2=48 Txt_h2=223 \
    Bolt_index=6 Ant_index=1 Bolt_ab=b Avstand_index=1

project tie-to-post Eng Prosjekt="Timber yard" Id="Tie to post" \
    Con_type=2 enk_1=false dob_1=true alp=90 P=-10 Lastvar=3 Klima=2 Mat_index=5 \
    Prof1_index=26 Prof2_index=38 Bolt_index=5 Ant_index=3

project collar-beam Eng Prosjekt="Roof truss" Id="Collar beam" \
    Con_type=3 enk_2=false dob_2=true alp=60 P=-18 Lastvar=4 Klima=1 Mat_index=5 \
    Prof1_index=38 Prof2_index=25 Kun_bolt=false Med_bulldog=true Bulldog_index=1 dc=62 \
    Bolt_index=0 Ant_index=1 Bolt_ab=a Man_he_on=true man_he=150

project footbridge Eng Prosjekt="Footbridge" Id="Beam to column" \
    Con_type=4 alp=90 P=-60 Lastvar=2 Klima=3 Mat_index=28 \
    Prof1_index=96 Prof2_index=95 Bolt_index=4 Ant_index=4 Bolt_ab=b

project limtre Nor Prosjekt="Lagerhall på Høyanger" Id="Bjelke – søyle" \
    Con_type=5 enk_1=false dob_1=true alp=90 P=25 Lastvar=3 Klima=1 Mat_index=31 \
    Prof1_index=57 Prof2_index=80 Kun_bolt=false Med_bulldog=true Bulldog_index=2 dc=75 \
    Bolt_index=1 Ant_index=3

project small-connector Eng Prosjekt="Roof truss" Id="Connector too small" \
    Kun_bolt=false Med_bulldog=true Bulldog_index=0 dc=48 Bolt_index=3

# A web of two pieces on a chord, by name: tension from 0 to 24 kN, and angles with their diagram.
web_to_chord=(--lang Eng --joint 1.2 --member1 2x48x198 --member2 48x223 --material C24 --bolt M16x8.8 --bolts 2 --layout b
    --load medium --service 1)
keep web-to-chord.csv "${web_to_chord[@]}" --angle 40 --sweep tension=0:24:2
keep web-to-chord-angles.csv "${web_to_chord[@]}" --set Prosjekt="Roof truss" --set Id="Web to chord, 12 kN" --tension 12 \
    --sweep angle=0:90:5 --plot web-to-chord.svg

batch force Rd_bolt,uf,Sb1,Sb3,he,Tverr_kontroll
batch steps Con_code,Case_code,n_bolt,Rd_bolt,Rd_for,uf,Tverr_kontroll
