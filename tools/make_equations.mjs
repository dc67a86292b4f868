#!/usr/bin/env node
// Makes the SVG files of frontend/pictures/equations: an equation from each *.tex. They are committed: the build needs
// neither npm nor TeX. To be run after each change of a source, with MathJax in a folder outside the tree:
//
//     npm install --prefix /tmp/mathjax mathjax-full@3.2.2
//     node tools/make_equations.mjs /tmp/mathjax
//
// Scale of all files: 1000 units of the viewBox are the letter size (1 em), and y = 0 is the baseline of an equation.
// Equations painted with the same factor thus have the same letters.
//
// Qt's SVG (6.4) is strict about what it paints: what follows a nested <svg> is lost, <use> and CSS are risky. What
// MathJax gives is therefore flattened to <path> elements, each with its own transform.
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
const mathDocument = mathjax.document('', {
    InputJax: new TeX({
        packages: ['base', 'ams'],
        formatError: (_, error) => {
            throw error;
        },
    }),
    OutputJax: new SVG({ fontCache: 'none' }),
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

function flatten(node, outer, paths) {
    const kind = adaptor.kind(node);
    const attribute = (name) => adaptor.getAttribute(node, name);
    const at = transformed(outer, attribute('transform'));
    if (kind === 'g') {
        adaptor.childNodes(node).forEach((child) => flatten(child, at, paths));
    } else if (kind === 'path') {
        const { x, y, sx, sy } = at;
        paths.push({ x, y, sx, sy, d: attribute('d') });
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

function equation(name) {
    const { box, paths } = typeset(readFileSync(join(folder, name), 'utf8'));
    return svgFile(name, roomy(box), paths.map(pathElement));
}

const folder = join(dirname(fileURLToPath(import.meta.url)), '..', 'frontend', 'pictures', 'equations');
for (const name of readdirSync(folder).sort()) {
    if (name.endsWith('.tex')) {
        const target = name.slice(0, -'.tex'.length) + '.svg';
        writeFileSync(join(folder, target), equation(name));
        console.log(target);
    }
}
