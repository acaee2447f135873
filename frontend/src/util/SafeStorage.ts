// The page's storage. One that refuses to work costs no more than what would have been remembered.
export class SafeStorage {
  constructor(private readonly storage: Storage) {}

  read(key: string): string {
    return this.access(() => this.storage.getItem(key)) ?? ''
  }

  write(key: string, value: string): void {
    this.access(() => {
      this.storage.setItem(key, value)
    })
  }

  remove(key: string): void {
    this.access(() => {
      this.storage.removeItem(key)
    })
  }

  private access<Result>(use: () => Result): Result | undefined {
    try {
      return use()
    } catch (error) {
      console.error('The local storage is not usable:', error)
      return undefined
    }
  }
}
