#!/usr/bin/env node
// Makes what the program knows of the equations, from each *.tex of frontend/pictures/equations: the SVG files there for
// the window, and for paper the fonts there and the places of their letters in frontend/painting/EquationTable.cpp. All
// are committed: the build needs neither npm nor TeX. To be run after each change of a source, with MathJax in a folder
// outside the tree and the Debian package python3-fonttools:
//
//     npm install --prefix /tmp/mathjax mathjax-full@3.2.2
//     node tools/make_equations.mjs /tmp/mathjax
//
// A PDF file knows one letter of each character of a font, so that letters of the same character (upright and italic,
// brackets of several heights) go to fonts of their own.
//
// Scale of all files: 1000 units of the viewBox are the letter size (1 em), and y = 0 is the baseline of an equation.
// Equations painted with the same factor thus have the same letters.
//
// Qt's SVG (6.4) is strict about what it paints: what follows a nested <svg> is lost, <use> and CSS are risky. What
// MathJax gives is therefore flattened to <path> elements, each with its own transform.
import { execFileSync } from 'node:child_process';
import { createRequire } from 'node:module';
import { readFileSync, readdirSync, writeFileSync } from 'node:fs';
import { dirname, join, resolve } from 'node:path';
import { fileURLToPath } from 'node:url';

const unitsPerEm = 1000;
const pixelsPerEm = 20; // of the files as they open in a viewer

if (process.argv.length !== 3) {
    console.error('usage: make_equations.mjs FOLDER    (FOLDER/node_modules holds mathjax-full 3)');
    process.exit(2);
}
const load = createRequire(join(resolve(process.argv[2]), 'package.json'));
const { mathjax } = load('mathjax-full/js/mathjax.js');
const { TeX } = load('mathjax-full/js/input/tex.js');
const { SVG } = load('mathjax-full/js/output/svg.js');
const { liteAdaptor } = load('mathjax-full/js/adaptors/liteAdaptor.js');
const { RegisterHTMLHandler } = load('mathjax-full/js/handlers/html.js');
load('mathjax-full/js/input/tex/AllPackages.js');

const adaptor = liteAdaptor();
RegisterHTMLHandler(adaptor);
const output = new SVG({ fontCache: 'none' });
const mathDocument = mathjax.document('', {
    InputJax: new TeX({
        packages: ['base', 'ams'],
        formatError: (_, error) => {
            throw error;
        },
    }),
    OutputJax: output,
});

const text = (value, digits = 1) => String(Number(value.toFixed(digits)));
const numbers = (list) => list.trim().split(/[\s,]+/).map(Number);

// The transforms that MathJax writes: translate and scale, nothing turned or sheared.
function transformed(outer, list) {
    const at = { ...outer };
    for (const [, name, values] of (list ?? '').matchAll(/(\w+)\(([^)]*)\)/g)) {
        const [x, y] = numbers(values);
        if (name === 'translate') {
            at.x += at.sx * x;
            at.y += at.sy * (y ?? 0);
        } else if (name === 'scale') {
            at.sx *= x;
            at.sy *= y ?? x;
        } else {
            throw new Error(`transform ${name} is not known`);
        }
    }
    return at;
}

// The letter of the alphabet for an italic one of the mathematical alphabets, which a search would not find.
const character = (code) => String.fromCodePoint(code).normalize('NFKC').codePointAt(0);

function flatten(node, outer, paths) {
    const kind = adaptor.kind(node);
    const attribute = (name) => adaptor.getAttribute(node, name);
    const at = transformed(outer, attribute('transform'));
    if (kind === 'g') {
        adaptor.childNodes(node).forEach((child) => flatten(child, at, paths));
    } else if (kind === 'path') {
        const { x, y, sx, sy } = at;
        paths.push({ x, y, sx, sy, d: attribute('d'), character: character(parseInt(attribute('data-c'), 16)) });
    } else if (kind === 'rect') {
        const [x, y, width, height] = ['x', 'y', 'width', 'height'].map((name) => Number(attribute(name) ?? 0));
        if (width > 0 && height > 0) {
            const d = `M0 0H${text(width)}V${text(height)}H0Z`;
            paths.push({ x: at.x + at.sx * x, y: at.y + at.sy * y, sx: at.sx, sy: at.sy, d });
        }
    } else {
        // A nested <svg> holds the clipped middle of a bracket or root higher than the font's largest, 3 em.
        throw new Error(`<${kind}> cannot be flattened: use brackets of a fixed size, or a lower formula`);
    }
}

// An equation as paths with y downward and the baseline at 0, and its box.
function typeset(tex) {
    const svg = adaptor.firstChild(mathDocument.convert(tex, { display: true }));
    const [x, y, width, height] = numbers(adaptor.getAttribute(svg, 'viewBox'));
    const paths = [];
    for (const child of adaptor.childNodes(svg)) {
        flatten(child, { x: 0, y: 0, sx: 1, sy: 1 }, paths);
    }
    return { box: { x, y, width, height }, paths };
}

function pathElement({ x, y, sx, sy, d }) {
    return `<path transform="translate(${text(x)},${text(y)}) scale(${text(sx, 4)},${text(sy, 4)})" d="${d}"/>`;
}

function svgFile(source, box, elements) {
    const size = (units) => text((units * pixelsPerEm) / unitsPerEm, 3);
    const viewBox = [box.x, box.y, box.width, box.height].map((value) => text(value)).join(' ');
    return [
        '<?xml version="1.0" encoding="UTF-8"?>',
        `<!-- Made by tools/make_equations.mjs from ${source}. -->`,
        '<svg xmlns="http://www.w3.org/2000/svg" ' +
            `width="${size(box.width)}" height="${size(box.height)}" viewBox="${viewBox}">`,
        ...elements,
        '</svg>',
        '',
    ].join('\n');
}

// Glyphs may reach a little over the box that TeX sets with. Whole units, so that the aspect is exact in the file.
function roomy({ x, y, width, height }) {
    const margin = 50;
    const left = Math.floor(x - margin);
    const top = Math.floor(y - margin);
    return { x: left, y: top, width: Math.ceil(x + width + margin) - left, height: Math.ceil(y + height + margin) - top };
}

// How wide each letter of the mathematical fonts is, by its outline.
const widths = new Map();
for (const { chars } of Object.values(output.font.variant)) {
    for (const [, , width, { p } = {}] of Object.values(chars)) {
        if (p) {
            widths.set(`M${p}Z`, Math.round(width * unitsPerEm));
        }
    }
}

// The fonts: of each a list of letters, whose place in it is the letter's number less one, as 0 is the missing letter.
const fonts = [];
function letterOf({ d, character }) {
    for (const [font, letters] of fonts.entries()) {
        const there = letters.findIndex((letter) => letter.character === character);
        if (there < 0 || letters[there].d === d) {
            if (there < 0) {
                letters.push({ character, d, width: widths.get(d) });
            }
            return { font, letter: (there < 0 ? letters.length - 1 : there) + 1 };
        }
    }
    fonts.push([{ character, d, width: widths.get(d) }]);
    return { font: fonts.length - 1, letter: 1 };
}

// The rows of the table in which an equation is letters of those fonts, and bars.
function tableRows({ paths }) {
    const letters = [];
    const bars = [];
    for (const path of paths) {
        const { x, y, sx, sy, d } = path;
        const bar = d.match(/^M0 0H([\d.]+)V([\d.]+)H0Z$/);
        if (bar) {
            bars.push(`{${[x, y + sy * bar[2], sx * bar[1], -sy * bar[2]].map((value) => text(value)).join(', ')}}`);
        } else {
            const { font, letter } = letterOf(path);
            letters.push(`{${font}, ${letter}, ${text(sx * unitsPerEm)}, ${text(x)}, ${text(y)}}`);
        }
    }
    return { letters, bars };
}

// Rows of the table, as many in a line as go there.
function filled(items) {
    const lines = ['   '];
    for (const item of items) {
        if (lines.at(-1).length + item.length + 2 > 120) {
            lines.push('   ');
        }
        lines[lines.length - 1] += ` ${item},`;
    }
    return lines.join('\n');
}

function list(kind, name, what, items) {
    const start = `constexpr std::array<${kind}, ${items.length}> ${name}_${what}`;
    return items.length === 0 ? `${start}{};` : `${start}{{\n${filled(items)}\n}};`;
}

function table(equations) {
    const rows = equations.map(({ name, box: { x, y, width, height }, letters, bars }) => ({
        lists: [list('EquationLetter', name, 'letters', letters), list('EquationBar', name, 'bars', bars)].join('\n'),
        row: `    {"${name}", {${x}.0, ${y}.0, ${width}.0, ${height}.0}, ${name}_letters, ${name}_bars},`,
    }));
    return `// Made by tools/make_equations.mjs.
#include "frontend/painting/EquationTable.h"

#include <array>

namespace tarnvik {

namespace {

// clang-format off
${rows.map(({ lists }) => lists).join('\n\n')}

constexpr std::array<SetEquation, ${rows.length}> equations{{
${rows.map(({ row }) => row).join('\n')}
}};
// clang-format on

} // namespace

std::span<const SetEquation> Set_equations() {
    return equations;
}

} // namespace tarnvik
`;
}

const tree = join(dirname(fileURLToPath(import.meta.url)), '..');
const folder = join(tree, 'frontend', 'pictures', 'equations');
const sources = readdirSync(folder).filter((name) => name.endsWith('.tex')).sort();

// Those of the report first, so that most of its letters are of one font.
const inReport = (name) => name.startsWith('Pic_r_');
sources.sort((one, other) => inReport(other) - inReport(one));

const equations = sources.map((source) => {
    const name = source.slice(0, -'.tex'.length);
    const { box, paths } = typeset(readFileSync(join(folder, source), 'utf8'));
    writeFileSync(join(folder, name + '.svg'), svgFile(source, roomy(box), paths.map(pathElement)));
    return { name, box: roomy(box), ...tableRows({ paths }) };
});
writeFileSync(join(tree, 'frontend', 'painting', 'EquationTable.cpp'), table(equations));
execFileSync('/usr/bin/python3', [join(tree, 'tools', 'make_equation_fonts.py'), folder], {
    input: JSON.stringify(fonts),
    stdio: ['pipe', 'inherit', 'inherit'],
});
