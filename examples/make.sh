#!/usr/bin/env bash
# Makes the example projects and their results:
#
#   examples/make.sh build/release/bin/tarnvik-check FOLDER
#
# FOLDER gets every NAME.tnvik with its readable summary (.txt) and its JSON (.json), what is asked of the joints by name, the
# results of the batch inputs and load cases, and status.txt with the exit status of each.
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

# joint NAME ARGUMENT...: a joint by name, in the arrays below: asked for with the fasteners that were chosen (.txt), what
# else holds and fits (.found.txt), and over a range of an input, with the arguments (.csv, .svg).
joint() {
    local name=$1
    shift
    keep "$name.txt" --lang Eng "${members[@]}" "${force[@]}" "${fasteners[@]}"
    keep "$name.found.txt" --lang Eng "${members[@]}" "${force[@]}" --find "${find[@]}"
    keep "$name.csv" --lang Eng "${members[@]}" "${fasteners[@]}" "$@" --plot "$name.svg"
}

# The top chord of a roof truss between the pieces of the bottom chord.
members=(--set Prosjekt="Roof truss" --set Id="Heel" --joint 1.3 --member1 48x198 --member2 2x48x223 --material C24 --service 1
    --angle 22)
force=(--load short --compression 14)
find=(--fix bolts=2,layout=b)
fasteners=(--bolt M12x8.8 --bolts 2 --layout b --spacing 10d)
joint truss-heel --load short --sweep compression=0:25:1

# Two boards side by side, the force along both.
members=(--set Prosjekt="Purlins" --set Id="Lap splice, 6 kN" --joint 1.1 --member1 48x148 --member2 48x148 --material C24
    --service 1 --angle 0)
force=(--load medium --tension 6)
find=(--fix spacing=7d)
fasteners=(--bolt M12x4.6 --bolts 2 --layout b --spacing 7d)
joint lap-splice "${force[@]}" --sweep spacing=5:20:1

# A web of two pieces on a chord, in double shear; over the angle, and over force and angle.
members=(--set Prosjekt="Roof truss" --set Id="Web to chord, 12 kN" --joint 1.2 --member1 2x48x198 --member2 48x223
    --material C24 --service 1)
force=(--load medium --tension 12 --angle 40)
find=(--fix bolt=M16x8.8)
fasteners=(--bolt M16x8.8 --bolts 2 --layout b --spacing 5d)
joint web-to-chord --load medium --tension 12 --sweep angle=0:90:5
keep web-to-chord-grid.csv --lang Eng "${members[@]}" "${fasteners[@]}" --load medium --set Id="Web to chord" \
    --sweep tension=0:24:2 --sweep angle=0:90:10 --plot web-to-chord-grid.svg

# A hanger of two pieces below a beam, over the height of the beam; and under its load cases.
members=(--set Prosjekt="Canopy" --set Id="Hanger, 7 kN" --joint 2.3 --member1 73x223 --member2 2x48x98 --material C24
    --service 2 --angle 90)
force=(--load medium --tension 7)
find=()
fasteners=(--bolt M16x4.6 --bolts 1)
joint hanger "${force[@]}" --sweep Txt_h1=100:300:10
keep hanger-loads.txt --lang Eng "${members[@]}" "${fasteners[@]}" --loads "$inputs/hanger-loads.csv"
keep hanger-loads.results.csv --lang Eng "${members[@]}" "${fasteners[@]}" --loads "$inputs/hanger-loads.csv" --csv

# A heavier one between the pieces of a beam, with tooth-plate connectors.
members=(--set Prosjekt="Canopy" --set Id="Hanger with connectors" --joint 2.2 --member1 2x73x223 --member2 98x148
    --material C24 --service 2 --angle 90)
force=(--load medium --tension 18)
find=(--with-connectors --fix bolts=1)
fasteners=(--bolt M12x8.8 --bolts 1 --connector D62)
joint hanger-connectors --load medium --sweep tension=0:25:1

batch force Rd_bolt,uf,Sb1,Sb3,he,Tverr_kontroll
batch steps Con_code,Case_code,n_bolt,Rd_bolt,Rd_for,uf,Tverr_kontroll
