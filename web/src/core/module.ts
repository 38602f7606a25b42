// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import {
  ConsoleStdout,
  Directory,
  File,
  type Inode,
  OpenFile,
  PreopenDirectory,
  WASI,
} from '@bjorn3/browser_wasi_shim';
import { kStructs, layOut, type Struct, type StructName, type Word } from './layouts';

type Exports = { memory: WebAssembly.Memory } & Record<string, (...args: number[]) => number>;

const kNoLink = 28; // EINVAL of WASI
const kScratchBytes = 1 << 16;

// Files by their paths, as the data root has them, in folders.
function makeFolders(files: Map<string, Uint8Array>): Map<string, Inode> {
  const root = new Map<string, Inode>();
  for (const [path, bytes] of files) {
    const parts = path.split('/');
    let folder = root;
    for (const part of parts.slice(0, -1)) {
      const known = folder.get(part) ?? new Directory(new Map());
      folder.set(part, known);
      folder = (known as Directory).contents;
    }
    folder.set(parts.at(-1)!, new File(bytes));
  }
  return root;
}

// The compiled scene: its functions by name, and values in its memory. What is put there for a call lies in a
// scratch area that the next call of `run` takes again.
export class SceneModule {
  #exports: Exports;
  #files: Map<string, Uint8Array>;
  #scratch = 0;
  #used = 0;

  private constructor(exports: Exports, files: Map<string, Uint8Array>) {
    this.#exports = exports;
    this.#files = files;
    this.#scratch = exports.malloc(kScratchBytes);
  }

  // `files`: what stands below /data. `log`: takes the diagnostic lines of loaders. Rejects where the bytes
  // are no module that this page can use.
  static async load(
    bytes: BufferSource,
    files: Map<string, Uint8Array>,
    log: (line: string) => void,
  ): Promise<SceneModule> {
    const lines = ConsoleStdout.lineBuffered(log);
    const roots = [
      new PreopenDirectory('/data', makeFolders(files)),
      new PreopenDirectory('/work', new Map()),
    ];
    const streams = [new OpenFile(new File([])), lines, lines];
    const wasi = new WASI(['scene'], ['TMPDIR=/work'], [...streams, ...roots], { debug: false });
    // Nothing here is a link; the shim says that it knows none, which the library takes for a failure.
    wasi.wasiImport.path_readlink = () => kNoLink;
    const { instance } = await WebAssembly.instantiate(bytes, { wasi_snapshot_preview1: wasi.wasiImport });
    wasi.initialize(instance as never);
    return new SceneModule(instance.exports as Exports, files);
  }

  // A file by the path that the module knows it by; null for none.
  getFile(path: string): Uint8Array | null {
    return this.#files.get(path.replace(/^\/data\//, '')) ?? null;
  }

  // Views of the memory hold until the next call, which may grow it.
  get view(): DataView {
    return new DataView(this.#exports.memory.buffer);
  }
  get bytes(): Uint8Array {
    return new Uint8Array(this.#exports.memory.buffer);
  }

  // Calls a function of the C interface; whatever was put before is gone afterwards.
  call(name: string, ...args: number[]): number {
    const called = this.#exports[name];
    if (!called) throw new Error(`the module has no ${name}`);
    this.#used = 0;
    return called(...args);
  }

  // Room for so many bytes until the next call is over.
  room(bytes: number): number {
    const at = this.#scratch + this.#used;
    this.#used += Math.ceil(bytes / 8) * 8;
    if (this.#used > kScratchBytes) throw new RangeError(`a call with more than ${kScratchBytes} bytes`);
    return at;
  }

  // A text with its zero; 0 for none.
  putText(text: string | null): number {
    if (text === null) return 0;
    const bytes = new TextEncoder().encode(text + '\0');
    const at = bytes.length > kScratchBytes / 2 ? this.#putLong(bytes.length) : this.room(bytes.length);
    this.bytes.set(bytes, at);
    return at;
  }

  #long = 0;
  #putLong(size: number): number {
    if (this.#long) this.#exports.free(this.#long);
    this.#long = this.#exports.malloc(size);
    if (!this.#long) throw new RangeError(`no memory for a text of ${size} bytes`);
    return this.#long;
  }

  getText(at: number): string {
    const { bytes } = this;
    return new TextDecoder().decode(bytes.subarray(at, bytes.indexOf(0, at)));
  }

  // A structure with its size in front, the members that are named set and the others zero.
  putStruct<Name extends StructName>(name: Name, values: Partial<Struct<Name>> = {}): number {
    const members: Record<string, Word> = kStructs[name];
    const { offsets, size } = layOut(members);
    const at = this.room(size);
    this.bytes.fill(0, at, at + size);
    if ('size' in members) this.view.setUint32(at, size, true);
    for (const [member, value] of Object.entries(values))
      this.#put(at + offsets[member], members[member], value);
    return at;
  }

  getStruct<Name extends StructName>(name: Name, at: number): Struct<Name> {
    const members: Record<string, Word> = kStructs[name];
    const { offsets } = layOut(members);
    const got: Record<string, unknown> = {};
    for (const [member, word] of Object.entries(members)) got[member] = this.#get(at + offsets[member], word);
    return got as Struct<Name>;
  }

  putNumbers(numbers: Float64Array): number {
    const at = this.room(numbers.byteLength);
    new Float64Array(this.#exports.memory.buffer, at, numbers.length).set(numbers);
    return at;
  }
  getNumbers(at: number, count: number): Float64Array {
    return new Float64Array(this.#exports.memory.buffer, at, count).slice();
  }

  #put(at: number, word: Word, value: unknown): void {
    if (word === 'text') {
      const text = this.putText(value as string | null);
      this.view.setUint32(at, text, true);
    } else if (word === 'f64') this.view.setFloat64(at, value as number, true);
    else if (word === 'object') {
      const { kind, number } = value as { kind: number; number: number };
      this.view.setInt32(at, kind, true);
      this.view.setInt32(at + 4, number, true);
    } else this.view.setInt32(at, value as number, true);
  }

  #get(at: number, word: Word): unknown {
    const { view } = this;
    if (word === 'i32') return view.getInt32(at, true);
    if (word === 'f64') return view.getFloat64(at, true);
    if (word === 'text') return this.getText(view.getUint32(at, true));
    if (word === 'object') return { kind: view.getInt32(at, true), number: view.getInt32(at + 4, true) };
    if (word.startsWith('char')) return this.getText(at);
    return view.getUint32(at, true);
  }
}
